// A minimal Tessaro host: commands in a registry, a ribbon whose layout the
// user keeps between runs, and a quick search box in the status bar.
#include <tessaro/Tessaro.h>

#include <QApplication>
#include <QDir>
#include <QMenu>
#include <QPlainTextEdit>
#include <QStandardPaths>
#include <QStatusBar>
#include <QTimer>

enum CommandId { ID_CLEAR = 1, ID_UPPER, ID_LOWER, ID_WRAP };

// Stores the registry's commands by id, so that a saved layout finds them again.
class LayoutSerializer : public ui::RibbonSerializer
{
public:
    LayoutSerializer(ui::RibbonBar* ribbon, ui::CommandsRegistry* commands)
        : ui::RibbonSerializer(ribbon)
        , m_commands(commands)
    {
    }

protected:
    QString getActionID(QAction* action) override
    {
        const int id = action->data().toInt();
        return id > 0 ? QString::number(id) : QString();
    }
    QAction* getAction(const QString& id) const override { return m_commands->getCommandAction(id.toInt()); }

private:
    ui::CommandsRegistry* m_commands;
};

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("minimal-host"));

    ui::MainWindow window;
    auto* editor = new QPlainTextEdit(&window);
    window.setCentralWidget(editor);

    // 1. Commands: an action per id, a run handler and an update handler.
    auto* commands = new ui::CommandsRegistry(&window);
    QAction* clear = commands->addCommand(QStringLiteral("Clear"), ID_CLEAR);
    QAction* upper = commands->addCommand(QStringLiteral("UPPER CASE"), ID_UPPER);
    QAction* lower = commands->addCommand(QStringLiteral("lower case"), ID_LOWER);
    QAction* wrap = commands->addCommand(QStringLiteral("Wrap Lines"), ID_WRAP);

    commands->ConnectCommand(ID_CLEAR, [editor] { editor->clear(); });
    commands->ConnectCommand(ID_UPPER, ID_LOWER, [editor](int id) {
        const QString text = editor->toPlainText();
        editor->setPlainText(id == ID_UPPER ? text.toUpper() : text.toLower());
    });
    commands->ConnectCommand(ID_WRAP, [editor] {
        const bool wrapped = editor->lineWrapMode() == QPlainTextEdit::WidgetWidth;
        editor->setLineWrapMode(wrapped ? QPlainTextEdit::NoWrap : QPlainTextEdit::WidgetWidth);
    });
    // Update handlers run on every wake-up of the event loop.
    commands->ConnectCommandUI(ID_CLEAR, [editor](ui::CommandState& state) {
        state.setEnabled(!editor->document()->isEmpty());
    });
    commands->ConnectCommandUI(ID_WRAP, [editor](ui::CommandState& state) {
        state.setChecked(editor->lineWrapMode() == QPlainTextEdit::WidgetWidth);
    });

    // 2. The menu that holds every command: the quick search and the
    //    customization dialog read command paths from it.
    auto* menu = new QMenu(QStringLiteral("Commands"), &window);
    QMenu* edit = menu->addMenu(QStringLiteral("Edit"));
    edit->addActions({clear, upper, lower});
    menu->addMenu(QStringLiteral("View"))->addAction(wrap);

    // 3. The ribbon, built once in code ...
    auto* ribbon = new ui::RibbonBar(QStringLiteral("MinimalHostRibbon"), &window);
    window.setRibbonBar(ribbon);
    Qtitan::RibbonPage* home = ribbon->addPage(QStringLiteral("Home"));
    Qtitan::RibbonGroup* text = home->addGroup(QStringLiteral("Text"));
    for (QAction* action : {clear, upper, lower}) {
        text->addAction(action);
        ui::setActionButtonStyle(text, action, Qt::ToolButtonTextBesideIcon);
    }
    home->addGroup(QStringLiteral("View"))->addAction(wrap);
    ribbon->addQuickAction(clear);

    // ... and then rearranged as the user left it last time.
    const QString settingsDir = QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
    QDir().mkpath(settingsDir);
    auto* settings = new KeyValueStorage(QDir(settingsDir).filePath(QStringLiteral("settings.dat")), &window);
    LayoutSerializer serializer(ribbon, commands);
    serializer.restore(settings->value(QStringLiteral("ribbon")).toByteArray());
    serializer.restoreQuickBar(settings->value(QStringLiteral("quickBar")).toByteArray());

    // 4. The quick search box: Ctrl+Q, then a few letters of "Edit → Clear".
    auto* search = new ui::QuickSearchWidget(window.statusBar());
    window.statusBar()->addPermanentWidget(search);
    search->setSource({menu->menuAction()});

    // Save the layout when the window goes; the store writes itself back when
    // it is destroyed together with the window.
    QObject::connect(&app, &QApplication::aboutToQuit, [&] {
        settings->setValue(QStringLiteral("ribbon"), serializer.save());
        settings->setValue(QStringLiteral("quickBar"), serializer.saveQuickBar());
    });

    window.resize(900, 600);
    window.show();
    if (app.arguments().contains(QStringLiteral("--quit")))
        QTimer::singleShot(0, &app, &QApplication::quit); // used by the packaging test
    return app.exec();
}
