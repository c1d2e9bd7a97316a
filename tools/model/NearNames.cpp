// Near is a name that few changes of letters lead to, or that holds what was written. See NearNames.h.
#include "tools/model/NearNames.h"

#include <algorithm>
#include <numeric>
#include <vector>

#include "frame/ClassDescription.h"
#include "tools/model/ValueText.h"

namespace qorltst::model {
namespace {

constexpr std::size_t kMostNames = 4;
constexpr std::size_t kShortestPart = 3;
constexpr std::size_t kLettersPerChange = 4;

std::u16string Folded(std::u16string_view name) {
  std::u16string folded(name);
  std::ranges::transform(folded, folded.begin(), FoldCase);
  return folded;
}

/// How many letters must be put in, left out or changed to make one name the other, or the start of it.
std::size_t Distance(std::u16string_view from, std::u16string_view to) {
  std::vector<std::size_t> row(to.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 0; i < from.size(); ++i) {
    std::size_t diagonal = std::exchange(row[0], i + 1);
    for (std::size_t j = 0; j < to.size(); ++j) {
      const std::size_t changed = diagonal + (from[i] == to[j] ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({changed, row[j] + 1, diagonal + 1});
    }
  }
  const std::size_t whole = row.at(to.size());
  // A name of which only the start was written counts as one change more; two letters are no start.
  return from.size() < kShortestPart ? whole : std::min(whole, *std::ranges::min_element(row) + 1);
}

struct Candidate {
  std::size_t distance = 0;
  std::u16string_view name;
};

std::string Listed(const std::vector<Candidate>& candidates) {
  std::string list;
  for (std::size_t i = 0; i < candidates.size(); ++i) {
    list += i == 0 ? "" : (i + 1 == candidates.size() ? " or " : ", ");
    list += NameText(candidates[i].name);
  }
  return list;
}

}  // namespace

std::string DidYouMean(std::u16string_view wanted, const std::set<std::u16string_view>& known) {
  const std::u16string folded = Folded(wanted);
  std::vector<Candidate> near;
  for (const std::u16string_view name : known) {
    const std::u16string other = Folded(name);
    const std::size_t distance = Distance(folded, other);
    const bool isPart = folded.size() >= kShortestPart && other.find(folded) != std::u16string::npos;
    if (isPart || distance <= std::max<std::size_t>(1, folded.size() / kLettersPerChange)) {
      near.push_back({distance, name});
    }
  }
  // The names come in their order; of equal distance, the first stays first.
  std::ranges::stable_sort(near, {}, &Candidate::distance);
  near.resize(std::min(near.size(), kMostNames));
  return near.empty() ? std::string() : "; did you mean " + Listed(near) + "?";
}

}  // namespace qorltst::model
