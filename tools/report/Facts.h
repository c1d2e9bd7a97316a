// What a page wants to know of an object, by the names of the object model. A name that a class does not have is an
// error of the program, which the tests find: each page asks for the same names.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tools/model/ModelWalk.h"

namespace qorltst::report {

/// The text of a property; an exact text of an amount or a date. Empty where there is none.
[[nodiscard]] std::u16string Fact(Object& object, std::u16string_view property);

/// The object in a property, or nothing.
[[nodiscard]] Object* ChildOf(Object& object, std::u16string_view property);

/// The objects of a collection.
[[nodiscard]] std::vector<Object*> ItemsOf(Object& object, std::u16string_view collection);

/// What the parser did not understand of the object's line, one by one.
[[nodiscard]] std::vector<std::u16string> ErrorsOf(std::u16string_view errorText);

/// A property's name in words: "NotValidBefore" is "Not valid before", "TSTHeader" is "TST header".
[[nodiscard]] std::string InWords(std::u16string_view name);

}  // namespace qorltst::report
