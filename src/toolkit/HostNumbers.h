// The host's numbers that the component relies on: error numbers, which are also its result codes, and modes.
#pragma once

#include <cstdint>

namespace qorltst::toolkit {

/// Host error numbers; the retrieval operations return the same numbers as their result codes.
enum HostErrorNumber : std::int32_t {
  kNoError = 0,
  kUnintendedResponse = 1000,
  kNotSignedIn = 1004,
  kParsingWarning = 1005,
  kParsingError = 1006,
  kTimeOut = 3000,
  kUnknownHost = 3001,
  kHostDisconnected = 3002,
  kNoMoreSessions = 3003,
  kSessionProblem = 3004,
};

/// What `ParseNode::Parse` answers when it could read the text.
inline constexpr std::int32_t kParseSuccess = 10000;

/// The parse mode of every call.
inline constexpr std::int32_t kParseMode = 6;

/// The session option that a retrieval of the current TST switches off.
inline constexpr std::int32_t kSessionOption = 322;

/// Kinds of log entries.
enum LogKind : std::int32_t { kLogError = 0, kLogWarning = 2, kLogTrace = 3 };

/// Screens are runs of lines of this many characters, with nothing between them.
inline constexpr std::size_t kLineLength = 80;

}  // namespace qorltst::toolkit
