// Writes HTML. Tags and attribute names are constants of the program; whatever comes from a ticket is escaped.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

namespace qorltst::report {

/// Markup that stands in the program. A text that is made while it runs does not convert.
class Markup {
 public:
  // NOLINTNEXTLINE(google-explicit-constructor): a literal is what is meant
  consteval Markup(const char* literal) : text_(literal) {}

  [[nodiscard]] constexpr std::string_view Text() const { return text_; }

 private:
  std::string_view text_;
};

/// Printable, with the characters that HTML gives a meaning escaped; fit for content and quoted attributes.
[[nodiscard]] std::string Escaped(std::u16string_view text);
[[nodiscard]] std::string Escaped(std::string_view utf8);

struct Attribute {
  Markup name;
  std::string value;
};

using Attributes = std::initializer_list<Attribute>;

class Html {
 public:
  /// Closes an element at the end of a block.
  class Element {
   public:
    Element(Html& html, Markup tag) : html_(&html), tag_(tag) {}
    Element(Element&& other) noexcept : html_(std::exchange(other.html_, nullptr)), tag_(other.tag_) {}
    Element(const Element&) = delete;
    Element& operator=(const Element&) = delete;
    Element& operator=(Element&&) = delete;
    ~Element() {
      if (html_ != nullptr) {
        html_->Close(tag_);
      }
    }

   private:
    Html* html_;
    Markup tag_;
  };

  /// An element with what is written until the result ends.
  [[nodiscard]] Element In(Markup tag, Attributes attributes = {}) {
    Open(tag, attributes);
    return {*this, tag};
  }

  /// An element with a text.
  template <class Text>
  Html& Add(Markup tag, const Text& text, Attributes attributes = {}) {
    Open(tag, attributes);
    written_ += Escaped(text);
    Close(tag);
    return *this;
  }

  template <class Text>
  Html& AddText(const Text& text) {
    written_ += Escaped(text);
    return *this;
  }

  Html& AddMarkup(Markup markup) {
    written_ += markup.Text();
    return *this;
  }

  /// What another writer has written.
  Html& Append(const Html& other) {
    written_ += other.written_;
    return *this;
  }

  [[nodiscard]] const std::string& Written() const noexcept { return written_; }

 private:
  void Open(Markup tag, Attributes attributes);
  void Close(Markup tag);

  std::string written_;
};

}  // namespace qorltst::report
