// Prints any object of the model as an indented tree, by its class's own table.
#pragma once

#include <iosfwd>
#include <string>
#include <string_view>

#include "frame/Object.h"

namespace qorltst::examples {

/// Prints the properties that hold something, one a line, and what lies below them. What is empty is left out.
class ModelPrinter {
 public:
  explicit ModelPrinter(std::ostream& out) noexcept : out_(out) {}

  void Print(Object& object, std::size_t depth = 0);

 private:
  void PrintLine(std::size_t depth, std::u16string_view name, std::string_view value);
  void PrintObject(std::size_t depth, std::u16string_view name, Object& value);

  std::ostream& out_;
};

}  // namespace qorltst::examples
