// A section for each class, a row for each member. See ModelPage.h.
#include "tools/reference/ModelPage.h"

#include <algorithm>
#include <string>

#include "frame/Collection.h"
#include "frame/PublicClasses.h"
#include "simulator/Utf.h"
#include "tools/reference/MemberText.h"
#include "tools/reference/NodeNames.h"

namespace qorltst::reference {
namespace {

using simulator::ToUtf8;

constexpr const char* kIntroduction = R"(# The object model

<!-- Made from the class tables by ./run reference; do not edit. -->

Every class that automation shows, with its properties and methods in the order of its interface. [retrieval.md](
retrieval.md) tells how the model is filled, [behaviour.md](behaviour.md) what callers can rely on.

![The object model below TST: which property leads to which class](object-model.svg)

In the tables, **id** is the dispatch id, which is also the member's place in the interface, except where a collection
uses an id that automation reserves. **Filled by** names the nodes of the host toolkit's parse tree whose text the
property takes; a path such as `TotalLine › CurrencyCode` goes from a node to its child, and starts at the node that the
object itself is made from ("itself"). `any` stands for a node of any type. The numbers of the types are in the [last
section](#node-types), the display lines that they come from in [display-format.md](display-format.md). "Nothing" marks
a property that no display fills. Properties are read only unless the table says otherwise.

)";

/// The page while it is written: it gathers the node types that it names.
class Page {
 public:
  Page(std::ostream& out, const ModelNode& tree, const FillSources& sources)
      : out_(out), tree_(tree), sources_(sources) {}

  void Write() {
    out_ << kIntroduction << "| class | what it is |\n|---|---|\n";
    for (const ClassDescription* const description : PublicClasses()) {
      out_ << "| " << LinkTo(*description) << " | " << ToUtf8(description->help) << " |\n";
    }
    for (const ClassDescription* const description : PublicClasses()) {
      WriteClass(*description);
    }
    WriteNodeTypes();
  }

 private:
  void WriteClass(const ClassDescription& description) {
    out_ << "\n## " << ToUtf8(description.name) << "\n\n" << ToUtf8(description.help);
    out_ << (description.create != nullptr ? " Created as `QorlTST." + ToUtf8(description.name) + "`."
                                           : " Not creatable: properties of other classes hand it out.");
    if (&description != tree_.type && !Contains(tree_, description) && &description != &Collection::kDescription) {
      out_ << " No property leads to one.";
    }
    WriteOrigins(description);
    const bool isFilled = IsFilled(description);
    out_ << "\n\n| id | member | type | meaning |" << (isFilled ? " filled by |" : "") << "\n|---|---|---|---|"
         << (isFilled ? "---|" : "") << "\n";
    for (const Member& row : description.members) {
      WriteMember(description, row, isFilled);
    }
  }

  void WriteOrigins(const ClassDescription& description) {
    const auto found = sources_.classes.find(&description);
    if (found == sources_.classes.end()) {
      return;
    }
    out_ << " Made from";
    const char* separator = " ";
    for (const Path& path : found->second) {
      out_ << std::exchange(separator, ", or ") << NamePath(path);
    }
    out_ << ".";
  }

  [[nodiscard]] bool IsFilled(const ClassDescription& description) const {
    return std::ranges::any_of(sources_.properties,
                               [&](const auto& entry) { return entry.first.first == &description; });
  }

  void WriteMember(const ClassDescription& description, const Member& row, bool isFilled) {
    out_ << "| " << description.DispatchIdOf(row) << " | `" << SignatureOf(row) << "` | " << TypeOf(row) << " | "
         << ToUtf8(row.help) << " |";
    if (isFilled) {
      out_ << ' ' << FilledBy({&description, &row}) << " |";
    }
    out_ << "\n";
  }

  [[nodiscard]] std::string FilledBy(const Property& property) {
    const auto found = sources_.properties.find(property);
    if (found == sources_.properties.end()) {
      return UsuallyFilled(*property.second) ? "nothing" : "";
    }
    std::string text;
    for (const Source& source : found->second) {
      text += (text.empty() ? "" : ", ") + SourceText(source, property.first == tree_.type);
    }
    return text;
  }

  std::string SourceText(const Source& source, bool isRoot) {
    const std::string node = source.path.empty() ? (isRoot ? "the whole display" : "itself") : NamePath(source.path);
    const std::string prefix = source.origin == Origin::ErrorText ? "error text of "
                               : source.origin == Origin::Buffer  ? "first item of "
                                                                  : "";
    return prefix + node + BehindText(source.behind);
  }

  std::string BehindText(const std::optional<NodeTypeId>& behind) {
    if (!behind) {
      return "";
    }
    return *behind == kUnknownType ? ", from the second on" : " together with " + NamePath({*behind});
  }

  /// Notes the types, for the section that explains them.
  std::string NamePath(const Path& path) {
    std::string text;
    for (const NodeTypeId type : path) {
      text += text.empty() ? "" : " › ";
      if (type == kUnknownType) {
        text += "any";
      } else {
        text += NameOf(type);
        named_.insert(type);
      }
    }
    return "`" + text + "`";
  }

  void WriteNodeTypes() {
    out_ << "\n## Node types\n\n| name | number |\n|---|---|\n";
    for (const NodeTypeId type : named_) {
      out_ << "| `" << NameOf(type) << "` | " << static_cast<std::int32_t>(type) << " |\n";
    }
  }

  std::ostream& out_;
  const ModelNode& tree_;
  const FillSources& sources_;
  std::set<NodeTypeId> named_;
};

}  // namespace

void WriteModelPage(std::ostream& out, const ModelNode& tree, const FillSources& sources) {
  Page(out, tree, sources).Write();
}

}  // namespace qorltst::reference
