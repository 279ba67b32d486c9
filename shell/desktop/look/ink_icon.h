// Icons drawn by us, in the colour of text: sharp at any scale, and right in every look.
#pragma once

#include <QIcon>

namespace zol {

/// @param name  of a drawing in images/icons, whose one colour is replaced by that of the text; none of that name:
/// empty
[[nodiscard]] QIcon ink_icon(const QString& name);

}  // namespace zol
