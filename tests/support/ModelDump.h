// A whole object model as data, for comparisons: every property of every object, by its path.
#pragma once

#include <map>
#include <set>
#include <string>

#include "frame/Object.h"

namespace qorltst::testing {

/// From "AirSegments(2).BoardPoint" to the value as text; what is not set is empty. Debug ids are left out, for they
/// differ from one retrieval to the next.
using ModelDump = std::map<std::u16string, std::u16string>;

[[nodiscard]] ModelDump DumpOf(Object& root);

/// The names of the classes of which the model holds an object.
[[nodiscard]] std::set<std::u16string> ClassesOf(Object& root);

/// The object and collection properties that hold nothing, "Class.Property".
[[nodiscard]] std::set<std::u16string> AbsentObjectsOf(Object& root);

/// Whether `part` is what a retrieval that stopped on its way could have made of a model that was empty before: no
/// property that is not in `whole`, and each value empty, the beginning of the whole one or, for what a later line
/// replaces, one of the `texts` that nodes have given. The first path that is not so is written to `path`.
[[nodiscard]] bool IsPartOf(const ModelDump& part, const ModelDump& whole, const std::set<std::u16string>& texts,
                            std::u16string& path);

}  // namespace qorltst::testing
