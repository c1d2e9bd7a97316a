// The compiler writes the names: a function's own text holds its template arguments. See NodeNames.h.
#include "tools/reference/NodeNames.h"

#include <array>
#include <cctype>
#include <map>
#include <utility>

namespace qorltst::reference {
namespace {

using toolkit::NodeTypeId;

constexpr std::size_t kChunk = 256;
constexpr std::size_t kChunks = 16;
constexpr std::string_view kScope = "NodeTypeId::";

/// "... NodeTypeId::City, (qorltst::toolkit::NodeTypeId)97, ..." for a run of numbers. A number without a name is cast.
template <NodeTypeId... Types>
constexpr const char* ArgumentsText() {
  return __PRETTY_FUNCTION__;
}

template <std::size_t First, std::size_t... Offsets>
constexpr std::string_view ChunkText(std::index_sequence<Offsets...> /*offsets*/) {
  return ArgumentsText<static_cast<NodeTypeId>(First + Offsets)...>();
}

std::string IdentifierAt(std::string_view text) {
  std::string identifier;
  for (const char c : text) {
    if (std::isalnum(static_cast<unsigned char>(c)) == 0) {
      break;
    }
    identifier += c;
  }
  return identifier;
}

using NameMap = std::map<NodeTypeId, std::string>;

void AddNames(NameMap& names, std::string_view text, std::size_t first) {
  // The arguments stand behind the last bracket that opens.
  text.remove_prefix(text.find_last_of("{<") + 1);
  for (std::size_t i = 0; i < kChunk; ++i) {
    const std::string_view argument = text.substr(0, text.find(','));
    if (const std::size_t scope = argument.find(kScope); scope != std::string_view::npos) {
      names[static_cast<NodeTypeId>(first + i)] = IdentifierAt(argument.substr(scope + kScope.size()));
    }
    text.remove_prefix(std::min(argument.size() + 1, text.size()));
  }
}

template <std::size_t... Chunks>
NameMap MakeNames(std::index_sequence<Chunks...> /*chunks*/) {
  NameMap names;
  (AddNames(names, ChunkText<Chunks * kChunk>(std::make_index_sequence<kChunk>()), Chunks * kChunk), ...);
  names.erase(NodeTypeId::None);
  return names;
}

const NameMap& Names() {
  static const NameMap names = MakeNames(std::make_index_sequence<kChunks>());
  return names;
}

}  // namespace

const std::vector<NodeTypeId>& NamedNodeTypes() {
  static const std::vector<NodeTypeId> types = [] {
    std::vector<NodeTypeId> all;
    for (const auto& [type, name] : Names()) {
      all.push_back(type);
    }
    return all;
  }();
  return types;
}

std::string NameOf(NodeTypeId type) {
  const auto found = Names().find(type);
  return found != Names().end() ? found->second : std::to_string(static_cast<std::int32_t>(type));
}

}  // namespace qorltst::reference
