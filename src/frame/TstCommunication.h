// Talks to the reservation host: sends the display command, pages, stitches the screens, and has the text parsed.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "frame/Frame.h"
#include "toolkit/HostSession.h"

namespace qorltst {

class TST;

/// One for each `TST`, made on its first retrieval and kept. Not visible to callers.
class TstCommunication : public Frame {
 public:
  explicit TstCommunication(toolkit::Toolkit& toolkit) : Frame(toolkit) {}

  /// Displays the current TST of the caller's session and fills `tst`. `session` may be null.
  /// Returns 0, 1000, 1005, 1006 or 3004; an unexpected failure ends it with the code held at that moment.
  /// Raises nothing.
  std::int32_t RetrieveCurrentTst(toolkit::HostSession* session, TST& tst) noexcept;

  /// As `RetrieveCurrentTst`, with the caller's own display command and without touching the session's options.
  std::int32_t RetrieveSpecificTst(toolkit::HostSession* session, std::u16string_view command, TST& tst) noexcept;

  /// Whether this screen is a TST display.
  bool TSTDisplay(std::u16string_view text);

  /// The whole display, from its first screen on; `page` is the last screen afterwards. Each cut is reckoned from
  /// the current screen and not from the text gathered so far, so three screens or more lose text; this is meant.
  std::u16string GetEntireTstToParse(std::u16string& page, toolkit::HostSession& session);

  /// The last screen without what it repeats of the one before, whose last line is `lastLine`; empty where that
  /// line does not occur. A screen that others follow comes back as it is.
  std::u16string CleanEntireResponse(std::u16string_view page, std::u16string_view lastLine);

 private:
  struct Retrieval;

  std::int32_t Retrieve(const Retrieval& retrieval, toolkit::HostSession* session, std::u16string_view command,
                        TST& tst) noexcept;
  void RetrieveUnder(std::int32_t& result, const Retrieval& retrieval, toolkit::HostSession* session,
                     std::u16string_view command, TST& tst);
  std::int32_t SessionError(const Retrieval& retrieval, std::u16string_view hostErrorSource);

  /// Parses a text with a fresh parser and tells whether a node of this type is in it.
  [[nodiscard]] bool Contains(std::u16string_view text, toolkit::NodeTypeId type) const;
};

}  // namespace qorltst
