// Logger by name. See LateBoundLogger.h.
#include "automation/LateBoundLogger.h"

namespace qorltst::automation {
namespace {

constexpr std::array<std::u16string_view, 2> kLoggerNames{u"SetApplication", u"Write"};
enum LoggerMember : std::size_t { kSetApplication, kWrite };

}  // namespace

Ref<DispatchNames> MakeLoggerNames() { return Make<DispatchNames>(kLoggerNames); }

void LateBoundLogger::SetApplication(std::u16string_view name) {
  std::array<Variant, 1> arguments{Variant(name)};
  Variant ignored;
  object_.Call(kSetApplication, DISPATCH_METHOD, arguments, ignored);
}

void LateBoundLogger::Write(std::int32_t kind, std::u16string_view source, std::int32_t number,
                            std::u16string_view message) {
  std::array<Variant, 4> arguments{Variant(kind), Variant(source), Variant(number), Variant(message)};
  Variant ignored;
  object_.Call(kWrite, DISPATCH_METHOD, arguments, ignored);
}

}  // namespace qorltst::automation
