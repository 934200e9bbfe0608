#pragma once

#include <tessaro/DynamicMenu.h>
#include <tessaro/MainWindow.h>

#include <QString>
#include <QVariant>

#include <vector>

class QActionGroup;
class QStyle;

namespace demo {

struct ShellOptions;

/// The settings key under which the chosen style is kept.
extern const QString styleKey;

/// Picks the style to start with: the command line's, else the saved one,
/// else Office 2016 Colorful; values the window does not offer are skipped.
int initialStyle(const ShellOptions& options, const QVariant& saved,
                 const std::vector<ui::MainWindow::Style>& supported);

/// A new style object for a ui::MainWindow::Style value; the plain Qt
/// "Fusion" style for UnknownStyle and any value outside the ribbon families.
QStyle* createStyle(int style);

/// A readable label such as "Office 2016 — Dark Gray".
QString styleLabel(int style);

/// Whether the value names one of the styles the window offers.
bool isKnownStyle(int style, const std::vector<ui::MainWindow::Style>& supported);

/// Installs a new application style for the value.
void applyStyle(int style);

/// A menu of every style the window offers, rebuilt at each opening with the
/// window's current style checked. Choosing an entry emits styleChosen().
class StyleMenu : public ui::DynamicMenu
{
    Q_OBJECT
public:
    StyleMenu(ui::MainWindow* window, std::vector<ui::MainWindow::Style> styles, QWidget* parent = nullptr);

signals:
    void styleChosen(int style);

protected:
    void updateContents() override;

private:
    ui::MainWindow* m_window;
    QActionGroup* m_group = nullptr;
    std::vector<ui::MainWindow::Style> m_styles;
};

} // namespace demo
