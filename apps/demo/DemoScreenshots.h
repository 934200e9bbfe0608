#pragma once

#include <QSize>
#include <QString>

class QMainWindow;

namespace ui {
class QuickSearchWidget;
}

namespace demo {

/// Shows @p window at @p size, lets it lay out and saves a picture of it to @p fileName.
bool saveWindowPicture(QMainWindow* window, const QSize& size, const QString& fileName);

/// Shows @p window at @p size, types @p query into @p box as a user would, and
/// saves the part of the screen with the window and the result popup (a
/// window of its own) to @p fileName.
bool saveQuickSearchPicture(QMainWindow* window, const QSize& size, ui::QuickSearchWidget* box,
                            const QString& query, const QString& fileName);

} // namespace demo
