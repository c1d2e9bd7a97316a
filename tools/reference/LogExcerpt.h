// Excerpts of the log in a page: each is written anew from a retrieval of the display that the page names.
#pragma once

#include <filesystem>
#include <istream>
#include <ostream>

namespace qorltst::reference {

/// Copies the page. A block that opens with "```log examples/displays/minimal.txt TQT 3-7" gets the entries 3 to 7 of
/// the log that the command leaves, without the numbers all of them. Raises `std::runtime_error` where there are none.
void RenewLogExcerpts(std::istream& page, const std::filesystem::path& sources, std::ostream& out);

}  // namespace qorltst::reference
