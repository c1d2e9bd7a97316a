// What the shell prints: the part of a model that a path names, and the classes as their tables describe them.
#pragma once

#include <string>
#include <string_view>

#include "tools/model/ObjectPath.h"

namespace qorltst::shell {

/// A value with its name; of an object what it holds itself, and which parts it has; of a collection a line for each
/// item.
void AppendSummary(std::string& out, const model::PathEnd& end);

/// Every class with its purpose.
void AppendClasses(std::string& out);

/// A class with its members, their types and their purposes. Raises `model::UnknownName`.
void AppendClass(std::string& out, std::string_view name);

}  // namespace qorltst::shell
