#pragma once

#include "qtitan/RibbonColors.h"

#include <QAbstractButton>

class QStyleOptionTitleBar;

namespace Qtitan {
namespace detail {

/// A minimise, maximise/restore or close button on the title strip of a
/// ribbon whose frame theme is on. The style paints it
/// (CommonStyle::PE_CaptionButton with a QStyleOptionTitleBar whose
/// subControls names the button and whose titleBarState is the window's state).
/// Its tool tip and accessible name say what it does.
class RibbonCaptionButton : public QAbstractButton
{
    Q_OBJECT
public:
    enum Kind { Minimize, Maximize, Close };

    RibbonCaptionButton(Kind kind, QWidget* parent);

    Kind kind() const { return m_kind; }
    /// The state of the window the button acts on; the maximise button shows restore while maximised.
    void setWindowState(Qt::WindowStates state);
    /// Whether the window is active; the glyph is quieter while it is not.
    void setWindowActive(bool active);

    QSize sizeHint() const override;

    /// Draws a caption button in the ribbon's colours: what CommonStyle does
    /// for PE_CaptionButton, and what the button does itself under other styles.
    static void paintFace(QPainter* painter, const QStyleOptionTitleBar& option, const RibbonColors& colors);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void describe();

    Kind m_kind;
    Qt::WindowStates m_windowState = Qt::WindowNoState;
    bool m_windowActive = true;
};

} // namespace detail
} // namespace Qtitan
