#include "DemoShell.h"

#include <tessaro/MenuBar.h>

#include <QAction>
#include <QEvent>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QTabBar>
#include <QTimer>

#include <algorithm>

namespace demo {

const QString styleKey = QStringLiteral("style");

namespace {

bool readStyle(const QString& text, int* style)
{
    bool ok = false;
    const int value = text.toInt(&ok);
    if (ok)
        *style = value;
    return ok;
}

bool offered(int style, const std::vector<ui::MainWindow::Style>& supported)
{
    return std::find(supported.begin(), supported.end(), ui::MainWindow::Style(style)) != supported.end();
}

// Small line icons drawn at run time, so that the corner buttons need no files.
QIcon drawnIcon(const std::function<void(QPainter&)>& draw)
{
    QPixmap pixmap(32, 32);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(2, 2);
    painter.setPen(QPen(QColor(70, 90, 120), 1.2));
    draw(painter);
    painter.end();
    return QIcon(pixmap);
}

QIcon closeIcon()
{
    return drawnIcon([](QPainter& p) {
        p.setPen(QPen(QColor(215, 60, 60), 2.2));
        p.drawLine(QPointF(4, 4), QPointF(12, 12));
        p.drawLine(QPointF(12, 4), QPointF(4, 12));
    });
}

QIcon arrowIcon(bool forward)
{
    return drawnIcon([forward](QPainter& p) {
        QPainterPath path;
        const qreal tip = forward ? 13 : 3;
        const qreal back = forward ? 5 : 11;
        path.moveTo(back, 3);
        path.lineTo(tip, 8);
        path.lineTo(back, 13);
        p.setPen(QPen(QColor(40, 120, 215), 2.2));
        p.drawPath(path);
    });
}

class CurrentSubWindowKeeper : public QObject
{
public:
    explicit CurrentSubWindowKeeper(QMdiArea* area)
        : QObject(area)
        , m_area(area)
    {
        area->installEventFilter(this);
        connect(area, &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow* window) {
            if (window)
                m_last = window;
        });
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == m_area && (event->type() == QEvent::Show || event->type() == QEvent::WindowActivate))
            QTimer::singleShot(0, this, &CurrentSubWindowKeeper::restore);
        return QObject::eventFilter(watched, event);
    }

private:
    void restore()
    {
        const QList<QMdiSubWindow*> windows = m_area->subWindowList(QMdiArea::CreationOrder);
        if (m_area->activeSubWindow() || windows.isEmpty() || !m_area->isVisible())
            return;
        QMdiSubWindow* wanted = m_last && windows.contains(m_last) ? m_last.data() : windows.last();
        m_area->setActiveSubWindow(wanted);
        if (!m_area->activeSubWindow())
            activateThroughStandIn(wanted);
        // Tabbed documents fill the area.
        if (m_area->viewMode() == QMdiArea::TabbedView)
            wanted->showMaximized();
    }

    void activateThroughStandIn(QMdiSubWindow* wanted)
    {
        // A tabbed area does not activate windows that it received while
        // hidden until a window joins it while shown: add a stand-in for a moment.
        QMdiSubWindow* standIn = m_area->addSubWindow(new QWidget);
        standIn->show();
        m_area->setActiveSubWindow(standIn);
        m_area->removeSubWindow(standIn);
        delete standIn;
        m_area->setActiveSubWindow(wanted);
    }

    QMdiArea* m_area;
    QPointer<QMdiSubWindow> m_last;
};

} // namespace

void activateCurrentOnShow(QMdiArea* area)
{
    new CurrentSubWindowKeeper(area);
}

QIcon helpIcon()
{
    return drawnIcon([](QPainter& p) {
        p.setBrush(QColor(60, 110, 190));
        p.setPen(Qt::NoPen);
        p.drawEllipse(QRectF(1, 1, 14, 14));
        QFont font = p.font();
        font.setBold(true);
        font.setPixelSize(11);
        p.setFont(font);
        p.setPen(Qt::white);
        p.drawText(QRectF(1, 1, 14, 14), Qt::AlignCenter, QStringLiteral("?"));
    });
}

ShellOptions parseShellOptions(const QStringList& arguments)
{
    ShellOptions options;
    for (int i = 1; i < arguments.size(); ++i) {
        const QString& argument = arguments.at(i);
        if (argument == QLatin1String("--classic")) {
            options.classic = true;
        } else if (argument == QLatin1String("--style")) {
            if (i + 1 >= arguments.size()) {
                options.error = QStringLiteral("--style needs a value");
                continue;
            }
            options.hasStyle = readStyle(arguments.at(++i), &options.style);
            if (!options.hasStyle)
                options.error = QStringLiteral("--style takes a number, not \"%1\"").arg(arguments.at(i));
        } else if (argument.startsWith(QLatin1String("--style="))) {
            const QString value = argument.mid(8);
            options.hasStyle = readStyle(value, &options.style);
            if (!options.hasStyle)
                options.error = QStringLiteral("--style takes a number, not \"%1\"").arg(value);
        }
    }
    return options;
}

ShellOptions takeShellOptions(int& argc, char** argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    const ShellOptions options = parseShellOptions(arguments);

    int kept = 1;
    for (int i = 1; i < argc; ++i) {
        const QByteArray argument(argv[i]);
        if (argument == "--classic" || argument.startsWith("--style="))
            continue;
        if (argument == "--style") {
            ++i; // and its value
            continue;
        }
        argv[kept++] = argv[i];
    }
    argc = kept;
    argv[argc] = nullptr;
    return options;
}

int initialStyle(const ShellOptions& options, const QVariant& saved,
                 const std::vector<ui::MainWindow::Style>& supported)
{
    if (options.hasStyle && offered(options.style, supported))
        return options.style;
    bool ok = false;
    const int value = saved.toInt(&ok);
    if (saved.isValid() && ok && offered(value, supported))
        return value;
    return ui::MainWindow::Office2016Colorful;
}

WindowActions createWindowActions(QMdiArea* area, QObject* parent)
{
    WindowActions actions;
    actions.next = new QAction(arrowIcon(true), QStringLiteral("Ne&xt Window"), parent);
    actions.previous = new QAction(arrowIcon(false), QStringLiteral("Pre&vious Window"), parent);
    actions.closeActive = new QAction(closeIcon(), QStringLiteral("Cl&ose Window"), parent);
    actions.closeAll = new QAction(QStringLiteral("Close &All Windows"), parent);
    actions.next->setShortcut(QKeySequence::NextChild);
    actions.previous->setShortcut(QKeySequence::PreviousChild);

    QObject::connect(actions.next, &QAction::triggered, area, &QMdiArea::activateNextSubWindow);
    QObject::connect(actions.previous, &QAction::triggered, area, &QMdiArea::activatePreviousSubWindow);
    QObject::connect(actions.closeActive, &QAction::triggered, area, &QMdiArea::closeActiveSubWindow);
    QObject::connect(actions.closeAll, &QAction::triggered, area, &QMdiArea::closeAllSubWindows);

    const QList<QAction*> all = actions.all();
    auto update = [area, all] {
        const bool any = !area->subWindowList().isEmpty();
        for (QAction* action : all)
            action->setEnabled(any);
    };
    QObject::connect(area, &QMdiArea::subWindowActivated, parent, update);
    update();
    return actions;
}

void keepTabTextReadable(QMdiArea* area)
{
    auto* tabBar = area->findChild<QTabBar*>();
    if (!tabBar)
        return;
    // An explicitly set palette survives application style changes.
    QPalette palette = tabBar->palette();
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text}) {
        palette.setColor(QPalette::Active, role, QColor(20, 20, 20));
        palette.setColor(QPalette::Inactive, role, QColor(20, 20, 20));
        palette.setColor(QPalette::Disabled, role, QColor(120, 120, 120));
    }
    tabBar->setPalette(palette);
}

ui::MenuBar* installClassicMenuBar(QMainWindow* window, const QList<QMenu*>& menus,
                                   const QList<QAction*>& cornerActions)
{
    auto* bar = new ui::MenuBar(window);
    for (QMenu* menu : menus)
        bar->addAction(menu->menuAction());
    for (QAction* action : cornerActions)
        bar->addRightCornerAction(action);
    window->setMenuWidget(bar);
    return bar;
}

} // namespace demo
