#pragma once

// The ribbon API: main window, ribbon bar, pages, groups, controls,
// quick access bar, system menu and the ribbon styles.

#include "qtitan/QtitanGlobal.h"
#include "qtitan/RibbonColors.h"
#include "qtitan/CommonStyle.h"
#include "qtitan/Office2007Style.h"
#include "qtitan/Office2010Style.h"
#include "qtitan/Office2013Style.h"
#include "qtitan/Office2016Style.h"
#include "qtitan/AdobePhotoshopStyle.h"
#include "qtitan/Windows7ScenicStyle.h"
#include "qtitan/RibbonControlSizeDefinition.h"
#include "qtitan/RibbonControl.h"
#include "qtitan/RibbonButtonControl.h"
#include "qtitan/RibbonWidgetControl.h"
#include "qtitan/RibbonSeparatorControl.h"
#include "qtitan/RibbonGroup.h"
#include "qtitan/RibbonPage.h"
#include "qtitan/RibbonQuickAccessBar.h"
#include "qtitan/RibbonSystemMenu.h"
#include "qtitan/RibbonSystemButton.h"
#include "qtitan/RibbonBar.h"
#include "qtitan/RibbonMainWindow.h"
