// A page for one ticket: what its sections write to, and the whole. The sections stand in Sections.h.
#pragma once

#include <string>
#include <vector>

#include "frame/TST.h"
#include "simulator/LogEntry.h"
#include "tools/report/Html.h"

namespace qorltst::report {

/// Where a ticket comes from and how its retrieval went.
struct Origin {
  std::string source;
  std::size_t line = 0;
  std::u16string command;
  std::string meaning;
  std::u16string brokenOffIn;
  std::vector<simulator::LogEntry> log;
};

/// The body of a page while it is written.
class Page {
 public:
  explicit Page(toolkit::Toolkit& toolkit) : toolkit_(toolkit) {}

  [[nodiscard]] Html& Out() noexcept { return html_; }

  [[nodiscard]] const Html& Body() const noexcept { return html_; }

  /// To read a part of a display again.
  [[nodiscard]] toolkit::Toolkit& Toolkit() const noexcept { return toolkit_; }

  /// A section with its heading, open until the result ends. `id` is its place in the page.
  [[nodiscard]] Html::Element Section(Markup id, Markup heading);

  /// Shows here what the parser did not understand, and lists it at the top of the page under `place`. Nothing where
  /// the text is empty.
  void Warn(const std::string& place, std::u16string_view errorText);

  struct Warning {
    std::string anchor;
    std::string place;
    std::size_t errors = 0;
  };

  struct Heading {
    std::string id;
    std::string text;
  };

  [[nodiscard]] const std::vector<Warning>& Warnings() const noexcept { return warnings_; }
  [[nodiscard]] const std::vector<Heading>& Headings() const noexcept { return headings_; }

 private:
  toolkit::Toolkit& toolkit_;
  Html html_;
  std::vector<Warning> warnings_;
  std::vector<Heading> headings_;
};

/// The page as one HTML document that needs nothing else. Without a ticket it says why there is none. `toolkit` reads
/// the fare calculation again, for its pieces.
[[nodiscard]] std::string TicketPage(const Origin& origin, TST* ticket, toolkit::Toolkit& toolkit);

}  // namespace qorltst::report
