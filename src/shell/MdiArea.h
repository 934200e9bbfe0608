#pragma once

#include <tessaro/TessaroGlobal.h>

#include <QMdiArea>

namespace ui {

/// The document area of the main window: a tabbed QMdiArea with closable
/// tabs along its bottom edge. Under a ribbon style its empty background
/// is the ribbon's workspace.
///
/// @code
/// auto* area = new ui::MdiArea(&window);
/// window.setCentralWidget(area);
/// area->addSubWindow(new QTextEdit)->showMaximized();   // one tab per document
/// @endcode
class TESSARO_EXPORT MdiArea : public QMdiArea
{
public:
    /// Creates the area in tabbed mode, tabs at the bottom, closable.
    explicit MdiArea(QWidget* parent = nullptr);
    ~MdiArea() override;

private:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

} // namespace ui
