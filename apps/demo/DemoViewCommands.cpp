#include "DemoViewCommands.h"

#include "DemoCommands.h"
#include "DemoDocument.h"
#include "DemoWindow.h"

#include <tessaro/CommandsRegistry.h>

#include <QStatusBar>
#include <QToolBar>

namespace {

using C = DemoCommands;
using G = IconPainter;
using T = DemoViewCommands;

void addViewCommands(DemoCommands& c)
{
    c.add(C::ViewZoomIn, G::ZoomIn, T::tr("Zoom &In"), QKeySequence::ZoomIn, T::tr("Make the text larger"));
    c.add(C::ViewZoomOut, G::ZoomOut, T::tr("Zoom &Out"), QKeySequence::ZoomOut, T::tr("Make the text smaller"));
    c.add(C::ViewZoomReset, G::ZoomReset, T::tr("&Actual Size"), QKeySequence(T::tr("Ctrl+0")),
          T::tr("Show the text at 100%"));
    c.add(C::ViewWordWrap, G::WordWrap, T::tr("&Word Wrap"), QKeySequence(T::tr("Alt+Z")), T::tr("Wrap long lines"));
    c.add(C::ViewRuler, G::Ruler, T::tr("Show &Ruler"), QKeySequence(T::tr("Ctrl+R")),
          T::tr("Show or hide the ruler"));
    c.add(C::ViewReadOnly, G::ReadOnly, T::tr("Read &Only"), QKeySequence(),
          T::tr("Protect the document from changes"));
    c.add(C::ViewToolBarStandard, G::ToolBar, T::tr("&Standard Toolbar"), QKeySequence(),
          T::tr("Show the standard toolbar"), true);
    c.add(C::ViewToolBarFormat, G::ToolBar, T::tr("&Formatting Toolbar"), QKeySequence(),
          T::tr("Show the formatting toolbar"), true);
    c.add(C::ViewStatusBar, G::StatusBar, T::tr("Status &Bar"), QKeySequence(), T::tr("Show the status bar"), true);
    c.add(C::ViewFullScreen, G::FullScreen, T::tr("&Full Screen"), QKeySequence::FullScreen, T::tr("Fill the screen"),
          true);
    c.add(C::ViewNextDocument, G::NextDocument, T::tr("&Next Document"), QKeySequence(T::tr("Ctrl+Tab")),
          T::tr("Show the next document"));
    c.add(C::ViewPreviousDocument, G::PreviousDocument, T::tr("&Previous Document"),
          QKeySequence(T::tr("Ctrl+Shift+Tab")), T::tr("Show the previous document"));
    const QList<int> levels = T::zoomLevels();
    for (int i = 0; i < levels.size(); ++i)
        c.add(C::ViewZoomFirst + i, G::Zoom, T::tr("%1%").arg(levels.at(i)), QKeySequence(),
              T::tr("Show the text at %1%").arg(levels.at(i)));
}

void connectZoom(DemoCommands& c)
{
    c.onDocument(C::ViewZoomIn, [](DemoDocument* doc) { doc->setZoom(doc->zoom() + 25); },
                 [](DemoDocument* doc) { return doc->zoom() < DemoDocument::maximumZoom; });
    c.onDocument(C::ViewZoomOut, [](DemoDocument* doc) { doc->setZoom(doc->zoom() - 25); },
                 [](DemoDocument* doc) { return doc->zoom() > DemoDocument::minimumZoom; });
    c.onDocument(C::ViewZoomReset, [](DemoDocument* doc) { doc->setZoom(100); },
                 [](DemoDocument* doc) { return doc->zoom() != 100; });
    c.registry()->ConnectCommand(C::ViewZoomFirst, C::ViewZoomLast, [&c](int id) {
        if (DemoDocument* doc = c.document())
            doc->setZoom(T::zoomLevels().value(id - C::ViewZoomFirst, 100));
    });
    c.registry()->ConnectCommandUI(C::ViewZoomFirst, C::ViewZoomLast, [&c](int id, ui::CommandState& state) {
        DemoDocument* doc = c.document();
        state.setEnabled(doc != nullptr);
        state.setChecked(doc && doc->zoom() == T::zoomLevels().value(id - C::ViewZoomFirst));
    });
}

void connectDocumentView(DemoCommands& c)
{
    c.onDocumentChecked(C::ViewWordWrap, [](DemoDocument* doc) { doc->setWordWrap(!doc->wordWrap()); },
                        [](DemoDocument* doc) { return doc->wordWrap(); });
    c.registry()->ConnectCommand(C::ViewRuler, [&c] {
        if (DemoDocument* doc = c.document())
            doc->setRulerVisible(!doc->isRulerVisible());
    });
    // The ruler command names what it will do rather than showing a check mark.
    c.registry()->ConnectCommandUI(C::ViewRuler, [&c](ui::CommandState& state) {
        DemoDocument* doc = c.document();
        state.setEnabled(doc != nullptr);
        state.setText(doc && doc->isRulerVisible() ? T::tr("Hide &Ruler") : T::tr("Show &Ruler"));
    });
    c.onDocumentChecked(C::ViewReadOnly, [](DemoDocument* doc) { doc->setReadOnly(!doc->isReadOnly()); },
                        [](DemoDocument* doc) { return doc->isReadOnly(); });
}

void connectWindowView(DemoCommands& c)
{
    ui::CommandsRegistry* registry = c.registry();
    DemoWindow* window = c.window();
    // A tool bar the user removed in Customize leaves its command disabled.
    const auto toggleWidget = [registry](int id, const std::function<QWidget*()>& widget) {
        registry->ConnectCommand(id, [widget] {
            if (QWidget* shown = widget())
                shown->setVisible(shown->isHidden());
        });
        registry->ConnectCommandUI(id, [widget](ui::CommandState& state) {
            QWidget* shown = widget();
            state.setEnabled(shown != nullptr);
            state.setChecked(shown && !shown->isHidden());
        });
    };
    toggleWidget(C::ViewToolBarStandard, [window] { return window->standardToolBar(); });
    toggleWidget(C::ViewToolBarFormat, [window] { return window->formatToolBar(); });
    toggleWidget(C::ViewStatusBar, [window] { return window->statusBar(); });
    registry->ConnectCommand(C::ViewFullScreen,
                             [window] { window->setWindowState(window->windowState() ^ Qt::WindowFullScreen); });
    registry->ConnectCommandUI(C::ViewFullScreen,
                               [window](ui::CommandState& state) { state.setChecked(window->isFullScreen()); });
    const auto step = [&c, window](int delta) {
        const QList<DemoDocument*> docs = window->documents();
        const int index = docs.indexOf(c.document());
        if (docs.size() > 1 && index >= 0)
            window->activateDocument(docs.at((index + delta + docs.size()) % docs.size()));
    };
    registry->ConnectCommand(C::ViewNextDocument, [step] { step(1); });
    registry->ConnectCommand(C::ViewPreviousDocument, [step] { step(-1); });
    const auto severalDocuments = [window](ui::CommandState& state) { state.setEnabled(window->documents().size() > 1); };
    registry->ConnectCommandUI(C::ViewNextDocument, severalDocuments);
    registry->ConnectCommandUI(C::ViewPreviousDocument, severalDocuments);
}

} // namespace

QList<int> DemoViewCommands::zoomLevels()
{
    return {50, 75, 100, 125, 150, 200, 300};
}

void DemoViewCommands::registerCommands(DemoCommands& c)
{
    addViewCommands(c);
    connectZoom(c);
    connectDocumentView(c);
    connectWindowView(c);
}
