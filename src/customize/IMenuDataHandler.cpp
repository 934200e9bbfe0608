#include <tessaro/IMenuDataHandler.h>

namespace ui {

// Out of line, so that the class's virtual table lives in the library.
IMenuDataHandler::~IMenuDataHandler() = default;

} // namespace ui
