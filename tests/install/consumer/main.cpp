#include <tessaro/Tessaro.h>

#include <QApplication>
#include <QFile>
#include <QTranslator>

// Uses a class of each layer and the installed translations; exits 0 when all work.
int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    ui::MainWindow window(nullptr, {});
    ui::RibbonBar* ribbon = new ui::RibbonBar(QStringLiteral("consumer"), &window);
    window.setRibbonBar(ribbon);
    ribbon->addPage(QStringLiteral("Home"))->addGroup(QStringLiteral("Clipboard"));

    ui::CommandsRegistry registry(nullptr);
    int runs = 0;
    QAction* action = registry.addCommand(QStringLiteral("Run"), 1);
    registry.ConnectCommand(1, [&runs] { ++runs; });
    action->trigger();

    QTranslator translator;
    const bool translated = translator.load(QStringLiteral("tessaro_en"), QStringLiteral(TRANSLATIONS_DIR));
    const bool logo = QFile::exists(QStringLiteral(":/Tessaro/logo.png"));
    return runs == 1 && ribbon->pageCount() == 1 && translated && logo ? 0 : 1;
}
