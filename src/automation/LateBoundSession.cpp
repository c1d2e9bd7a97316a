// Session and response by name. See LateBoundSession.h.
#include "automation/LateBoundSession.h"

namespace qorltst::automation {
namespace {

constexpr std::array<std::u16string_view, 2> kSessionNames{u"SendCommand", u"SetOption"};
enum SessionMember : std::size_t { kSendCommand, kSetOption };

constexpr std::array<std::u16string_view, 1> kResponseNames{u"Text"};
constexpr std::size_t kText = 0;

}  // namespace

LateBoundSession::LateBoundSession(ComRef<IDispatch> object) : object_(std::move(object), kSessionNames) {}

Ref<toolkit::HostResponse> LateBoundSession::SendCommand(std::u16string_view command, bool wait) {
  std::array<Variant, 2> arguments{Variant(command), Variant(wait)};
  Variant result;
  object_.Call(kSendCommand, DISPATCH_METHOD, arguments, result);
  ComRef<IDispatch> response = LateBoundObject::ObjectIn(result);
  return response ? Ref<toolkit::HostResponse>(Make<LateBoundResponse>(std::move(response))) : nullptr;
}

void LateBoundSession::SetOption(std::int32_t option, bool value) {
  std::array<Variant, 2> arguments{Variant(option), Variant(value)};
  Variant ignored;
  object_.Call(kSetOption, DISPATCH_METHOD, arguments, ignored);
}

LateBoundResponse::LateBoundResponse(ComRef<IDispatch> object) : object_(std::move(object), kResponseNames) {}

std::u16string LateBoundResponse::Text() { return object_.GetText(kText); }

}  // namespace qorltst::automation
