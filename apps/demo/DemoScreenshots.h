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

/// Shows @p window, types @p query into @p box as a user would, and saves the
/// whole screen (the result popup is a window of its own) to @p fileName.
bool saveQuickSearchPicture(QMainWindow* window, ui::QuickSearchWidget* box, const QString& query,
                            const QString& fileName);

} // namespace demo
