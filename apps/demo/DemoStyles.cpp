#include "DemoStyles.h"

#include "DemoShellOptions.h"

#include <QtitanRibbon.h>

#include <QActionGroup>
#include <QApplication>
#include <QStyleFactory>

#include <algorithm>

namespace demo {

const QString styleKey = QStringLiteral("style");

namespace {

struct Family
{
    int base;
    const char* name;
    std::vector<const char*> themes;
};

const std::vector<Family>& families()
{
    static const std::vector<Family> list{
        {0, "Windows 7 Scenic", {}},
        {10, "Office 2007", {"Blue", "Black", "Silver", "Aqua"}},
        {20, "Office 2010", {"Black", "Blue", "Silver"}},
        {30, "Office 2013", {"White", "Gray", "Dark"}},
        {40, "Office 2016", {"Colorful", "White", "Dark Gray", "Black"}},
        {50, "Adobe Photoshop", {"Light Gray", "Gray", "Dark Gray", "Black"}},
    };
    return list;
}

const Family* familyOf(int style)
{
    for (const Family& family : families()) {
        const int count = family.themes.empty() ? 1 : int(family.themes.size());
        if (style >= family.base && style < family.base + count)
            return &family;
    }
    return nullptr;
}

} // namespace

int initialStyle(const ShellOptions& options, const QVariant& saved,
                 const std::vector<ui::MainWindow::Style>& supported)
{
    if (options.hasStyle && isKnownStyle(options.style, supported))
        return options.style;
    bool ok = false;
    const int value = saved.toInt(&ok);
    if (saved.isValid() && ok && isKnownStyle(value, supported))
        return value;
    return ui::MainWindow::Office2016Colorful;
}

QStyle* createStyle(int style)
{
    using namespace Qtitan;
    const Family* family = familyOf(style);
    if (!family)
        return QStyleFactory::create(QStringLiteral("Fusion"));
    const int theme = style - family->base;
    switch (family->base) {
    case 0:
        return new Windows7ScenicStyle;
    case 10:
        return new Office2007Style(Office2007Style::Theme(theme));
    case 20:
        return new Office2010Style(Office2010Style::Theme(theme));
    case 30:
        return new Office2013Style(Office2013Style::Theme(theme));
    case 40:
        return new Office2016Style(Office2016Style::Theme(theme));
    default:
        return new AdobePhotoshopStyle(AdobePhotoshopStyle::Theme(theme));
    }
}

QString styleLabel(int style)
{
    const Family* family = familyOf(style);
    if (!family)
        return QStringLiteral("Qt Fusion (no ribbon style)");
    const QString name = QString::fromLatin1(family->name);
    if (family->themes.empty())
        return name;
    return name + QStringLiteral(" — ") + QString::fromLatin1(family->themes.at(style - family->base));
}

bool isKnownStyle(int style, const std::vector<ui::MainWindow::Style>& supported)
{
    return std::find(supported.begin(), supported.end(), ui::MainWindow::Style(style)) != supported.end();
}

void applyStyle(int style)
{
    QApplication::setStyle(createStyle(style));
}

StyleMenu::StyleMenu(ui::MainWindow* window, std::vector<ui::MainWindow::Style> styles, QWidget* parent)
    : ui::DynamicMenu(QStringLiteral("&Style"), parent)
    , m_window(window)
    , m_styles(std::move(styles))
{
}

void StyleMenu::updateContents()
{
    clear();
    delete m_group;
    m_group = new QActionGroup(this);
    const int current = m_window->currentStyle();
    int previousBase = -2;
    for (ui::MainWindow::Style style : m_styles) {
        const Family* family = familyOf(style);
        const int base = family ? family->base : -1;
        if (previousBase != -2 && base != previousBase)
            addSeparator();
        previousBase = base;
        QAction* action = addAction(styleLabel(style));
        action->setCheckable(true);
        action->setChecked(style == current);
        action->setActionGroup(m_group);
        const int value = style;
        connect(action, &QAction::triggered, this, [this, value] { emit styleChosen(value); });
    }
    ui::DynamicMenu::updateContents();
}

} // namespace demo
