// Texts of the runtime's own errors, and the translation of foreign exceptions. See RuntimeError.h.
#include "toolkit/RuntimeError.h"

#include <algorithm>
#include <array>
#include <new>

namespace qorltst::toolkit {
namespace {

struct NumberText {
  std::int32_t number;
  std::u16string_view text;
};

constexpr std::u16string_view kComponentName = u"QorlTST";

constexpr std::array kTexts{
    NumberText{kInvalidCall, u"Invalid procedure call or argument"},
    NumberText{kOverflow, u"Overflow"},
    NumberText{kOutOfMemory, u"Out of memory"},
    NumberText{kSubscriptOutOfRange, u"Subscript out of range"},
    NumberText{kTypeMismatch, u"Type mismatch"},
    NumberText{kInternalError, u"Internal error"},
    NumberText{kObjectNotSet, u"Object variable or With block variable not set"},
    NumberText{kNoSuchMember, u"Object doesn't support this property or method"},
    NumberText{kNamedArgumentNotFound, u"Named argument not found"},
    NumberText{kArgumentNotOptional, u"Argument not optional"},
    NumberText{kWrongArgumentCount, u"Wrong number of arguments or invalid property assignment"},
};

std::u16string_view TextOf(std::int32_t number) {
  const auto* const found = std::ranges::find(kTexts, number, &NumberText::number);
  return found != kTexts.end() ? found->text : u"Application-defined or object-defined error";
}

}  // namespace

RuntimeError::RuntimeError(std::int32_t number) : RuntimeError(number, kComponentName, TextOf(number)) {}

RuntimeError::RuntimeError(std::int32_t number, std::u16string_view source, std::u16string_view description)
    : number_(number), source_(source), description_(description) {}

RuntimeError CurrentRuntimeError() {
  try {
    throw;
  } catch (const RuntimeError& error) {
    return error;
  } catch (const std::bad_alloc&) {
    return RuntimeError(kOutOfMemory);
  } catch (...) {
    return RuntimeError(kInternalError);
  }
}

}  // namespace qorltst::toolkit
