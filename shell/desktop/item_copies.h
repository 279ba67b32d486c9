// Copying from lists and tables.
#pragma once

class QAbstractItemView;

namespace zol {

/// Gives a list or table the commands "Copy" (selected lines, cells of a line with tabs between) and "Select all", by
/// key and in its context menu.
void add_copy_commands(QAbstractItemView& view);

}  // namespace zol
