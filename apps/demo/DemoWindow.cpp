#include "DemoWindow.h"

#include "DemoAutoSave.h"
#include "DemoClassicMenuBar.h"
#include "DemoCommands.h"
#include "DemoCustomizeWindow.h"
#include "DemoDocument.h"
#include "DemoDocumentArea.h"
#include "DemoFiles.h"
#include "DemoFontFamilyAction.h"
#include "DemoFindBar.h"
#include "DemoMenus.h"
#include "DemoOutline.h"
#include "DemoProperties.h"
#include "DemoQuickSearch.h"
#include "DemoRibbon.h"
#include "DemoSettings.h"
#include "DemoStyles.h"
#include "DemoWelcome.h"
#include "DemoWindowLayout.h"
#include "IconPainter.h"

#include <tessaro/CommandsRegistry.h>
#include <tessaro/DockListMenu.h>
#include <tessaro/MdiArea.h>
#include <tessaro/RibbonBar.h>

#include <QAction>
#include <QCloseEvent>
#include <QLabel>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMessageBox>
#include <QStatusBar>
#include <QTextCursor>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>

namespace {

const QString standardToolBarName = QStringLiteral("standardToolBar");
const QString formatToolBarName = QStringLiteral("formatToolBar");

} // namespace

DemoWindow::DemoWindow(const QString& settingsFile, QWidget* parent, const demo::ShellOptions& shell)
    : ui::MainWindow(parent)
    , m_settings(std::make_unique<DemoSettings>(settingsFile))
    , m_classic(shell.classic)
{
    if (shell.resetLayout)
        DemoWindowLayout::reset(*m_settings);
    applyInitialStyle(shell);
    setObjectName(QStringLiteral("demoWindow"));
    setWindowIcon(IconPainter::icon(IconPainter::Logo));
    createDocumentArea();
    m_commands = new DemoCommands(this);
    // Shortcuts work whatever shows the actions (menus, tool bars or a ribbon).
    addActions(m_commands->registry()->getActions());
    createMenus();
    createToolBars();
    createStatusBar();
    m_quickSearch = new DemoQuickSearch(this);
    m_defaultLayout = DemoCustomLayout::of(*this);
    DemoWindowLayout::restore(*this);
    // Searched where the restored ribbon (or the menu bar) shows the commands.
    m_quickSearch->refresh();
    updateTitle();
}

DemoWindow::~DemoWindow()
{
    // What reports to this window goes while it is still a DemoWindow: past
    // this body only a QWidget is left, and the document area would still
    // announce the active document changing as its tabs go.
    disconnect(m_area, nullptr, this, nullptr);
    if (m_connectedDocument)
        disconnect(m_connectedDocument, nullptr, this, nullptr);
    m_connectedDocument = nullptr;
    // The documents go before the commands whose actions their menus show,
    // and the ribbon (or menu bar) before those actions, which it shows too.
    for (DemoDocument* doc : documents())
        delete doc;
    delete menuWidget();
}

void DemoWindow::createDocumentArea()
{
    auto* central = new QWidget(this);
    auto* layout = new QVBoxLayout(central);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);

    m_area = new ui::MdiArea(central);
    m_area->setObjectName(QStringLiteral("demoDocuments"));
    connect(m_area, &QMdiArea::subWindowActivated, this, &DemoWindow::onCurrentTabChanged);
    layout->addWidget(m_area, 1);

    m_findBar = new DemoFindBar(central);
    layout->addWidget(m_findBar);
    setCentralWidget(central);
}

void DemoWindow::createMenus()
{
    createShell();
    m_findBar->setNavigationActions(m_commands->action(DemoCommands::EditFindNext),
                                    m_commands->action(DemoCommands::EditFindPrevious));
}

void DemoWindow::createToolBars()
{
    const auto fill = [this](QToolBar* bar, const QList<int>& ids) {
        for (int id : ids) {
            if (id == 0)
                bar->addSeparator();
            else
                bar->addAction(m_commands->action(id));
        }
    };
    using C = DemoCommands;
    QToolBar* standard = addToolBar(tr("Standard"));
    standard->setObjectName(standardToolBarName);
    fill(standard, {C::FileNew, C::FileOpen, C::FileSave, 0, C::EditUndo, C::EditRedo, 0, C::EditCut,
                             C::EditCopy, C::EditPaste, 0, C::EditFind, C::EditReplace, 0, C::ViewZoomIn,
                             C::ViewZoomOut, C::ViewRuler, 0, C::InsertTable, C::InsertImage, C::InsertDate, 0,
                             C::ToolsWordCount, C::HelpContents});
    QToolBar* format = addToolBar(tr("Formatting"));
    format->setObjectName(formatToolBarName);
    // The window owns the box, so that any tool bar the user arranges can show it.
    auto* fontFamily = new DemoFontFamilyAction(m_commands, this);
    fontFamily->setObjectName(QStringLiteral("toolbar.fontFamily"));
    format->addAction(fontFamily);
    format->addSeparator();
    fill(format, {C::FormatBold, C::FormatItalic, C::FormatUnderline, C::FormatStrikeOut, 0,
                           C::FormatSuperscript, C::FormatSubscript, C::FormatHighlight, 0, C::FormatAlignLeft,
                           C::FormatAlignCenter, C::FormatAlignRight, C::FormatAlignJustify, 0, C::FormatOutdent,
                           C::FormatIndent, 0, C::InsertBulletList, C::InsertNumberedList, 0, C::FormatGrowFont,
                           C::FormatShrinkFont, C::FormatClear});
    // The ribbon already shows these commands; the tool bars are there on request.
    if (!m_classic) {
        standard->hide();
        format->hide();
    }
}

void DemoWindow::createStatusBar()
{
    m_statusTimer = new QTimer(this);
    m_statusTimer->setSingleShot(true);
    m_statusTimer->setInterval(250);
    connect(m_statusTimer, &QTimer::timeout, this, &DemoWindow::updateStatus);
    m_positionLabel = new QLabel(this);
    m_wordsLabel = new QLabel(this);
    m_zoomLabel = new QLabel(this);
    for (QLabel* label : {m_positionLabel, m_wordsLabel, m_zoomLabel}) {
        label->setContentsMargins(8, 0, 8, 0);
        statusBar()->addPermanentWidget(label);
    }
    statusBar()->showMessage(tr("Ready"));
}

void DemoWindow::saveSettings()
{
    DemoWindowLayout::save(*this);
    if (DemoDocument* doc = activeDocument()) {
        m_settings->setValue(DemoSettings::zoomKey, doc->zoom());
        m_settings->setValue(DemoSettings::wordWrapKey, doc->wordWrap());
        m_settings->setValue(DemoSettings::rulerKey, doc->isRulerVisible());
    }
    m_settings->setValue(DemoSettings::autoSaveKey, m_commands->autoSave()->isOn());
    m_settings->setValue(DemoSettings::findTextKey, m_findBar->findText());
    m_settings->setRecentFiles(m_commands->files()->recentFiles());
}

void DemoWindow::closeEvent(QCloseEvent* event)
{
    for (DemoDocument* doc : documents()) {
        if (doc->isModified() && !m_commands->files()->close(doc)) {
            event->ignore();
            return;
        }
    }
    saveSettings();
    event->accept();
}

// Found by name: Customize may remove them, and Cancel or a restart make them anew.
QToolBar* DemoWindow::standardToolBar() const
{
    return findChild<QToolBar*>(standardToolBarName, Qt::FindDirectChildrenOnly);
}

QToolBar* DemoWindow::formatToolBar() const
{
    return findChild<QToolBar*>(formatToolBarName, Qt::FindDirectChildrenOnly);
}

QList<QToolBar*> DemoWindow::toolBars() const
{
    return findChildren<QToolBar*>(QString(), Qt::FindDirectChildrenOnly);
}

void DemoWindow::customize()
{
    DemoCustomizeWindow::showFor(this);
}

DemoDocument* DemoWindow::activeDocument() const
{
    // The current sub-window stays current while the application is inactive.
    if (QMdiSubWindow* window = m_area->currentSubWindow()) {
        if (auto* doc = qobject_cast<DemoDocument*>(window->widget()))
            return doc;
    }
    // While none is active (just shown, or received while hidden), the one
    // used last still counts.
    const QList<QMdiSubWindow*> history = m_area->subWindowList(QMdiArea::ActivationHistoryOrder);
    for (auto it = history.crbegin(); it != history.crend(); ++it) {
        if (auto* doc = qobject_cast<DemoDocument*>((*it)->widget()))
            return doc;
    }
    return nullptr;
}

QList<DemoDocument*> DemoWindow::documents() const
{
    QList<DemoDocument*> list;
    for (QMdiSubWindow* window : m_area->subWindowList(QMdiArea::CreationOrder)) {
        if (auto* doc = qobject_cast<DemoDocument*>(window->widget()))
            list.append(doc);
    }
    return list;
}

namespace {

// Closing a document's tab goes through the Close command, which may ask to save.
class CloseThroughCommand : public QObject
{
public:
    CloseThroughCommand(DemoFiles* files, DemoDocument* document, QObject* parent)
        : QObject(parent), m_files(files), m_document(document) {}

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Close && !m_closing) {
            event->ignore();
            m_closing = true;
            m_files->close(m_document);
            m_closing = false;
            return true;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    DemoFiles* m_files;
    DemoDocument* m_document;
    bool m_closing = false;
};

QMdiSubWindow* subWindowOf(DemoDocument* document)
{
    return document ? qobject_cast<QMdiSubWindow*>(document->parentWidget()) : nullptr;
}

} // namespace

void DemoWindow::addDocument(DemoDocument* document)
{
    QMdiSubWindow* window = m_area->addSubWindow(document);
    window->setWindowIcon(IconPainter::icon(IconPainter::New));
    window->installEventFilter(new CloseThroughCommand(m_commands->files(), document, window));
    // File › Close owns Ctrl+W: the sub-window's own Close would make it ambiguous.
    if (QMenu* systemMenu = window->systemMenu()) {
        for (QAction* action : systemMenu->actions())
            action->setShortcuts({});
    }
    const auto retitle = [this, document, window] {
        window->setWindowTitle(document->title() + (document->isModified() ? QStringLiteral(" *") : QString()));
        window->setToolTip(document->filePath());
        if (document == activeDocument())
            updateTitle();
    };
    connect(document, &DemoDocument::titleChanged, window, retitle);
    retitle();
    // Tabbed documents fill the area.
    window->showMaximized();
    m_area->setActiveSubWindow(window);
    document->setFocus();
    // Activation is not reported while the window is hidden.
    if (m_connectedDocument != activeDocument())
        onCurrentTabChanged();
}

void DemoWindow::activateDocument(DemoDocument* document)
{
    if (QMdiSubWindow* window = subWindowOf(document)) {
        m_area->setActiveSubWindow(window);
        document->setFocus();
        if (m_connectedDocument != activeDocument())
            onCurrentTabChanged();
    }
}

void DemoWindow::removeDocument(DemoDocument* document)
{
    QMdiSubWindow* window = subWindowOf(document);
    if (!window || !m_area->subWindowList().contains(window))
        return;
    if (m_connectedDocument == document)
        m_connectedDocument = nullptr;
    m_area->removeSubWindow(window);
    window->hide();
    window->deleteLater();
    // The area maximises the next tab only while the closed one is still
    // there to hand it over; tabbed documents fill the area.
    if (QMdiSubWindow* next = subWindowOf(activeDocument()))
        next->showMaximized();
    onCurrentTabChanged();
}

void DemoWindow::onCurrentTabChanged()
{
    if (m_connectedDocument) {
        disconnect(m_connectedDocument, nullptr, this, nullptr);
        disconnect(m_connectedDocument, nullptr, m_statusTimer, nullptr);
    }
    m_connectedDocument = activeDocument();
    if (DemoDocument* doc = m_connectedDocument) {
        connect(doc, &QTextEdit::cursorPositionChanged, this, &DemoWindow::updateStatus);
        // Counting words walks the whole text: wait for a pause in typing.
        connect(doc, &QTextEdit::textChanged, m_statusTimer, qOverload<>(&QTimer::start));
        connect(doc, &DemoDocument::zoomChanged, this, &DemoWindow::updateStatus);
    }
    updateTitle();
    updateStatus();
    emit activeDocumentChanged(m_connectedDocument);
}

void DemoWindow::updateTitle()
{
    DemoDocument* doc = activeDocument();
    const QString app = tr("Tessaro Demo");
    setWindowTitle(doc ? QStringLiteral("%1%2 - %3").arg(doc->title(), doc->isModified() ? QStringLiteral(" *") : QString(), app)
                       : app);
}

void DemoWindow::updateStatus()
{
    DemoDocument* doc = activeDocument();
    m_positionLabel->setText(doc ? tr("Line %1, Column %2").arg(doc->lineNumber()).arg(doc->columnNumber()) : QString());
    m_wordsLabel->setText(doc ? tr("%n word(s)", nullptr, doc->wordCount()) : QString());
    m_zoomLabel->setText(doc ? tr("Zoom %1%").arg(doc->zoom()) : QString());
}

void DemoWindow::showMessage(const QString& text, int timeout)
{
    statusBar()->showMessage(text, timeout);
}

void DemoWindow::information(const QString& title, const QString& text)
{
    auto* box = new QMessageBox(QMessageBox::Information, title, text, QMessageBox::Ok, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

void DemoWindow::openWelcomeDocument()
{
    DemoDocument* doc = m_commands->files()->newDocument();
    doc->setContent(DemoWelcome::html(m_classic));
    doc->setUntitledTitle(DemoWelcome::title());
    doc->moveCursor(QTextCursor::Start);
}

void DemoWindow::applyInitialStyle(const demo::ShellOptions& shell)
{
    const int style = demo::initialStyle(shell, m_settings->value(demo::styleKey), getSupportedStyles());
    demo::applyStyle(style);
}

void DemoWindow::chooseStyle(int style)
{
    demo::applyStyle(style);
    m_settings->setValue(demo::styleKey, style);
    const QString label = demo::styleLabel(currentStyle());
    demo::appendLog(m_docks, tr("Style: %1").arg(label));
    showMessage(tr("Style: %1").arg(label));
}

void DemoWindow::createShell()
{
    demo::keepTabTextReadable(m_area);
    demo::activateCurrentOnShow(m_area);
    m_docks = demo::createDocks(this);
    connect(this, &DemoWindow::activeDocumentChanged, m_docks.outlineView, &DemoOutline::setDocument);
    connect(this, &DemoWindow::activeDocumentChanged, m_docks.propertiesView, &DemoProperties::setDocument);
    demo::appendLog(m_docks, tr("Started with %1 (%2).")
                                 .arg(demo::styleLabel(currentStyle()))
                                 .arg(m_classic ? tr("classic menu bar") : tr("ribbon")));

    // The View menu lists the panels and the styles; both are rebuilt each time they open.
    m_panelsMenu = new ui::DockListMenu(this);
    m_panelsMenu->menuAction()->setProperty("isDynamic", true);
    m_styleMenu = new demo::StyleMenu(this, getSupportedStyles(), this);
    m_styleMenu->menuAction()->setProperty("isDynamic", true);
    connect(m_styleMenu, &demo::StyleMenu::styleChosen, this, &DemoWindow::chooseStyle);
    QMenu* view = m_commands->menus().category(DemoMenus::View);
    view->addSeparator();
    view->addMenu(m_panelsMenu);
    view->addMenu(m_styleMenu);

    if (m_classic) {
        QList<QAction*> corner;
        for (int id : {DemoCommands::ViewPreviousDocument, DemoCommands::ViewNextDocument, DemoCommands::FileClose,
                       DemoCommands::HelpContents}) {
            if (QAction* action = m_commands->action(id))
                corner << action;
        }
        demo::installClassicMenuBar(this, m_commands->menus().categories(), corner);
    } else {
        // A menu shown by a ribbon button takes that button's action as its own,
        // so the ribbon gets menus of its own.
        auto* ribbonStyles = new demo::StyleMenu(this, getSupportedStyles(), this);
        connect(ribbonStyles, &demo::StyleMenu::styleChosen, this, &DemoWindow::chooseStyle);
        setRibbonBar(demo::createRibbon(m_commands, new ui::DockListMenu(this), ribbonStyles, this));
    }
}
