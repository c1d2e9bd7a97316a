// A class's public face as data: its members in interface order, and the indexes that look-ups need.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "frame/Member.h"
#include "toolkit/Toolkit.h"

namespace qorltst {

/// Automation names are told apart without regard to case; members are named in ASCII.
constexpr char16_t FoldCase(char16_t character) noexcept {
  return character >= u'A' && character <= u'Z' ? static_cast<char16_t>(character + (u'a' - u'A')) : character;
}

/// Orders names without regard to case: negative, zero or positive.
constexpr int CompareNames(std::u16string_view left, std::u16string_view right) noexcept {
  const std::size_t common = std::min(left.size(), right.size());
  for (std::size_t i = 0; i < common; ++i) {
    const char16_t a = FoldCase(left[i]);
    const char16_t b = FoldCase(right[i]);
    if (a != b) {
      return a < b ? -1 : 1;
    }
  }
  return left.size() == right.size() ? 0 : (left.size() < right.size() ? -1 : 1);
}

/// The row that a child node fills.
struct NodeRow {
  toolkit::NodeTypeId node = toolkit::NodeTypeId::None;
  std::uint8_t row = 0;
};

/// What a class is to the outside. One constant for each class, `kDescription`, in the class's own file.
struct ClassDescription {
  std::u16string_view name;
  std::u16string_view help;
  /// In interface order.
  std::span<const Member> members;
  /// Rows in the order of their names, without regard to case.
  std::span<const std::uint8_t> byName;
  /// Rows that a node fills, in the order of the nodes.
  std::span<const NodeRow> byNode;
  /// Makes a new object for a caller; absent for what callers cannot create.
  Ref<Object> (*create)(toolkit::Toolkit&) = nullptr;

  /// The row of this name, or nothing.
  [[nodiscard]] const Member* FindByName(std::u16string_view memberName) const noexcept;

  /// The row of this dispatch id, or nothing.
  [[nodiscard]] const Member* FindByDispatchId(std::int32_t dispatchId) const noexcept;

  /// The row that this child node fills, or nothing.
  [[nodiscard]] const Member* FindByNode(toolkit::NodeTypeId node) const noexcept;

  /// The dispatch id of a row of this class.
  [[nodiscard]] std::int32_t DispatchIdOf(const Member& member) const noexcept;
};

/// The rows of a class with their indexes, made while compiling. Two members of one name, two rows for one node,
/// a row without a help string or a table longer than its index is an error there.
template <std::size_t N>
class MemberTable {
 public:
  // NOLINTNEXTLINE(google-explicit-constructor): a table is written as a braced list of rows
  consteval MemberTable(const Member (&rows)[N]) {
    static_assert(N < 256, "rows are indexed with one byte");
    for (std::size_t i = 0; i < N; ++i) {
      rows_[i] = rows[i];
      byName_[i] = static_cast<std::uint8_t>(i);
      Check(!rows[i].name.empty() && !rows[i].help.empty());
      if (rows[i].node != toolkit::NodeTypeId::None) {
        byNode_[nodes_++] = {rows[i].node, static_cast<std::uint8_t>(i)};
      }
    }
    SortByName();
    SortByNode();
  }

  [[nodiscard]] constexpr ClassDescription Describe(std::u16string_view name, std::u16string_view help,
                                                    Ref<Object> (*create)(toolkit::Toolkit&)) const {
    return {name, help, rows_, byName_, std::span(byNode_).first(nodes_), create};
  }

 private:
  /// Stops the compilation when a table does not keep what it must.
  static consteval void Check(bool kept) {
    if (!kept) {
      throw "a member table must have named and explained rows, unique names and unique nodes";
    }
  }

  consteval void SortByName() {
    const auto compare = [this](std::uint8_t a, std::uint8_t b) { return CompareNames(rows_[a].name, rows_[b].name); };
    std::ranges::sort(byName_, [compare](std::uint8_t a, std::uint8_t b) { return compare(a, b) < 0; });
    for (std::size_t i = 1; i < N; ++i) {
      Check(compare(byName_[i - 1], byName_[i]) != 0);
    }
  }

  consteval void SortByNode() {
    std::sort(byNode_.begin(), byNode_.begin() + static_cast<std::ptrdiff_t>(nodes_),
              [](const NodeRow& a, const NodeRow& b) { return a.node < b.node; });
    for (std::size_t i = 1; i < nodes_; ++i) {
      Check(byNode_[i - 1].node != byNode_[i].node);
    }
  }

  std::array<Member, N> rows_{};
  std::array<std::uint8_t, N> byName_{};
  std::array<NodeRow, N> byNode_{};
  std::size_t nodes_ = 0;
};

/// How the class factory makes an object of a class.
template <class Class>
Ref<Object> CreateObject(toolkit::Toolkit& toolkit) {
  return Make<Class>(toolkit);
}

}  // namespace qorltst
