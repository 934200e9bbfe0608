#pragma once

// Starting the demo's window as a user would, for the tests that restart it
// in the same settings folder. Only for tests that link the demo's core.

#include "DemoShellOptions.h"
#include "DemoWindow.h"

#include <QApplication>
#include <QString>
#include <QtTest>

#include <memory>

namespace testcommon {

/// The demo window over @p settingsFile (ribbon or classic, after
/// --reset-layout when @p resetLayout), with its welcome document, shown and
/// active; null when it does not become active.
inline std::unique_ptr<DemoWindow> startDemo(const QString& settingsFile, bool classic = false,
                                             bool resetLayout = false)
{
    demo::ShellOptions options;
    options.classic = classic;
    options.resetLayout = resetLayout;
    auto window = std::make_unique<DemoWindow>(settingsFile, nullptr, options);
    window->openWelcomeDocument();
    window->show();
    QApplication::setActiveWindow(window.get());
    if (!QTest::qWaitForWindowActive(window.get()))
        return nullptr;
    return window;
}

} // namespace testcommon
