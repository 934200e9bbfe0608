#include "DemoCustomLayout.h"

#include "DemoRibbonSerializer.h"
#include "DemoSettings.h"
#include "DemoToolBars.h"
#include "DemoWindow.h"

#include <tessaro/RibbonBar.h>

namespace {

ui::RibbonBar* ribbonOf(DemoWindow& window)
{
    return qobject_cast<ui::RibbonBar*>(window.ribbonBar());
}

} // namespace

DemoCustomLayout DemoCustomLayout::of(DemoWindow& window)
{
    DemoCustomLayout layout;
    if (ui::RibbonBar* bar = ribbonOf(window)) {
        demo::DemoRibbonSerializer serializer(bar, window.commands());
        layout.ribbon = serializer.save();
        layout.quickBar = serializer.saveQuickBar();
    }
    layout.toolBars = DemoToolBars::save(window);
    return layout;
}

DemoCustomLayout DemoCustomLayout::stored(const DemoSettings& settings)
{
    DemoCustomLayout layout;
    layout.ribbon = settings.value(demo::DemoRibbonSerializer::layoutKey).toByteArray();
    layout.quickBar = settings.value(demo::DemoRibbonSerializer::quickBarKey).toByteArray();
    layout.toolBars = settings.value(DemoToolBars::settingsKey);
    return layout;
}

void DemoCustomLayout::applyTo(DemoWindow& window) const
{
    if (ui::RibbonBar* bar = ribbonOf(window)) {
        const int page = bar->currentPageIndex();
        demo::DemoRibbonSerializer serializer(bar, window.commands());
        if (!ribbon.isEmpty())
            serializer.restore(ribbon);
        if (!quickBar.isEmpty())
            serializer.restoreQuickBar(quickBar);
        bar->setCurrentPageIndex(qBound(0, page, bar->pageCount() - 1));
    }
    DemoToolBars::restore(window, toolBars);
}

void DemoCustomLayout::store(DemoSettings& settings) const
{
    if (!ribbon.isEmpty()) {
        settings.setValue(demo::DemoRibbonSerializer::layoutKey, ribbon);
        settings.setValue(demo::DemoRibbonSerializer::quickBarKey, quickBar);
    }
    settings.setValue(DemoToolBars::settingsKey, toolBars);
}

void DemoCustomLayout::forget(DemoSettings& settings)
{
    for (const QString& key :
         {demo::DemoRibbonSerializer::layoutKey, demo::DemoRibbonSerializer::quickBarKey, DemoToolBars::settingsKey})
        settings.remove(key);
}
