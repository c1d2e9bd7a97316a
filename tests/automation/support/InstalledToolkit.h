// The host toolkit's names stand for a library of this build, whatever the registry says.
#pragma once

#include <string>

#include "automation/Com.h"

namespace qorltst::automation::test {

/// The simulated toolkit's classes, for what creates them without their names.
inline constexpr Guid kParserClass = ParseGuid("f2c1b7c6-1bf0-4cb3-8eb9-e8f9b32e235a");
inline constexpr Guid kLoggerClass = ParseGuid("f6768415-8214-4763-b5c5-e8313a3f6bdb");
inline constexpr Guid kSessionClass = ParseGuid("ba8a69eb-e8bc-4256-8a2d-924d1e535d4e");
inline constexpr Guid kLogReaderClass = ParseGuid("84f4d42c-5537-4f9d-a935-371b9966c9bd");

inline constexpr const char* kToolkitFile = "QorlHostToolkit.dll";

/// Holds for the thread that makes it, until its end.
class Installed {
 public:
  explicit Installed(const std::string& library, const std::string& threading = "Apartment");
  Installed(const Installed&) = delete;
  Installed& operator=(const Installed&) = delete;
  ~Installed();

 private:
  HANDLE context_ = nullptr;
  ULONG_PTR cookie_ = 0;
};

}  // namespace qorltst::automation::test
