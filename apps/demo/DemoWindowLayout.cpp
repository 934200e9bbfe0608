#include "DemoWindowLayout.h"

#include "DemoCommands.h"
#include "DemoCustomLayout.h"
#include "DemoSettings.h"
#include "DemoShortcutSettings.h"
#include "DemoStyles.h"
#include "DemoWindow.h"

#include <tessaro/RibbonBar.h>

#include <QScreen>

const QString DemoWindowLayout::geometryKey = QStringLiteral("window/geometry");
const QString DemoWindowLayout::ribbonWindowStateKey = QStringLiteral("window/ribbonState");
const QString DemoWindowLayout::classicWindowStateKey = QStringLiteral("window/classicState");
const QString DemoWindowLayout::ribbonMinimizedKey = QStringLiteral("ribbon/minimized");

namespace {

const QString& windowStateKey(const DemoWindow& window)
{
    return window.isClassic() ? DemoWindowLayout::classicWindowStateKey : DemoWindowLayout::ribbonWindowStateKey;
}

// The first start fills most of the screen, centred.
void placeFirstTime(DemoWindow& window)
{
    const QRect available = window.screen()->availableGeometry();
    QRect frame(QPoint(), available.size() * 0.8);
    frame.moveCenter(available.center());
    window.setGeometry(frame);
}

ui::RibbonBar* ribbonOf(DemoWindow& window)
{
    return qobject_cast<ui::RibbonBar*>(window.ribbonBar());
}

} // namespace

void DemoWindowLayout::restore(DemoWindow& window)
{
    DemoSettings& settings = window.settings();
    DemoCustomLayout::stored(settings).applyTo(window);
    if (ui::RibbonBar* ribbon = ribbonOf(window))
        ribbon->setMinimized(settings.value(ribbonMinimizedKey, false).toBool());
    const QByteArray geometry = settings.value(geometryKey).toByteArray();
    if (geometry.isEmpty() || !window.restoreGeometry(geometry))
        placeFirstTime(window);
    window.restoreState(settings.value(windowStateKey(window)).toByteArray());
}

void DemoWindowLayout::save(DemoWindow& window)
{
    DemoSettings& settings = window.settings();
    DemoCustomLayout::of(window).store(settings);
    if (ui::RibbonBar* ribbon = ribbonOf(window))
        settings.setValue(ribbonMinimizedKey, ribbon->isMinimized());
    settings.setValue(geometryKey, window.saveGeometry());
    settings.setValue(windowStateKey(window), window.saveState());
}

void DemoWindowLayout::reset(DemoSettings& settings)
{
    for (const QString& key : {geometryKey, ribbonWindowStateKey, classicWindowStateKey, ribbonMinimizedKey,
                               demo::styleKey, DemoShortcutSettings::settingsKey})
        settings.remove(key);
    DemoCustomLayout::forget(settings);
}
