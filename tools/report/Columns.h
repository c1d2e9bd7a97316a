// Tables of a page whose columns are properties.
#pragma once

#include <span>

#include "tools/report/Page.h"

namespace qorltst::report {

/// A column: its heading, and the property that fills it. The first column names its row.
struct Column {
  Markup heading;
  std::u16string_view property;
  bool isNumber = false;
};

/// A frame for a table that may be wider than a narrow window, and is scrolled in itself then.
[[nodiscard]] Html::Element WideFrame(Html& html, const char* name);

/// The row of headings.
void WriteHeadings(Html& html, std::span<const Column> columns);

/// The row of an object, and below it what the parser did not understand, which is also listed under `kind` and the
/// text of the first column. A property that the object's class does not have leaves its cell empty.
void WriteRow(Page& page, Object& object, std::span<const Column> columns, const std::string& kind);

}  // namespace qorltst::report
