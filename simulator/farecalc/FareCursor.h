// The cursor of a fare calculation: looks ahead over its tokens, takes them and adds nodes for what was read.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

#include "simulator/LineReader.h"
#include "simulator/farecalc/Token.h"

namespace qorltst::simulator {

class FareCursor {
 public:
  /// Takes all that is left of the line, which must outlive the cursor.
  explicit FareCursor(LineReader& reader);

  [[nodiscard]] bool AtEnd() const noexcept { return next_ == tokens_.size(); }

  /// The next token, or one further ahead; behind the last one a token of no kind.
  [[nodiscard]] const Token& Peek(std::size_t ahead = 0) const noexcept;

  /// Whether the tokens from `ahead` on have these shapes, one shape for each.
  template <class... Shapes>
  [[nodiscard]] bool SeesAt(std::size_t ahead, Shapes... shapes) const {
    return (shapes(Peek(ahead++)) && ...);
  }

  template <class... Shapes>
  [[nodiscard]] bool Sees(Shapes... shapes) const {
    return SeesAt(0, shapes...);
  }

  /// The text from the next token up to the next blank.
  [[nodiscard]] std::u16string_view Word() const;

  /// Takes the next token; one of no kind at the end.
  Token Next();

  /// Takes so many characters, at most the whole word. They may be several tokens or a part of one, whose rest then is
  /// the next token.
  Token Take(std::size_t count);

  /// Takes all that is left, as displayed.
  Token Rest();

  /// Takes the next token as a node.
  void Add(TreeNode& parent, NodeTypeId type) { parent.Add(type, Next().text); }

  /// Takes so many characters as a node.
  void Add(TreeNode& parent, NodeTypeId type, std::size_t count) { parent.Add(type, Take(count).text); }

  /// Adds a node for what `read(node)` takes; its text is all of that, as displayed. Nothing is added where nothing
  /// is taken.
  template <class Read>
  void Cover(TreeNode& parent, NodeTypeId type, Read read) {
    const std::size_t start = Peek().position;
    const auto node = toolkit::Make<TreeNode>(type, std::u16string_view());
    read(*node);
    if (const std::u16string_view text = TextSince(start); !text.empty()) {
      node->SetText(text);
      parent.Add(node);
    }
  }

  /// Notes on the line's node what is missing or wrong at the next token.
  void Warn(std::u16string_view reason) const;

  /// Leaves out the next word up to a bracket, or the bracket that stands next, with a warning.
  void SkipUnexpected();

 private:
  [[nodiscard]] std::u16string_view TextSince(std::size_t start) const;

  LineReader& reader_;
  Field source_;
  std::vector<Token> tokens_;
  Token end_;
  std::size_t next_ = 0;
  /// Where the token ends that was taken last.
  std::size_t taken_ = 0;
};

/// One production of the grammar: whether it starts at the cursor, and who reads it then.
struct Production {
  bool (*starts)(const FareCursor& cursor) = nullptr;
  /// Adds its nodes to `parent`. Takes at least one token.
  void (*read)(FareCursor& cursor, TreeNode& parent) = nullptr;
};

/// Reads the first of the productions that starts at the cursor; whether there was one.
bool ReadOneOf(FareCursor& cursor, TreeNode& parent, std::span<const Production> productions);

}  // namespace qorltst::simulator
