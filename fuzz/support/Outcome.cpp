// See Outcome.h.
#include "fuzz/support/Outcome.h"

#include <algorithm>
#include <array>

#include "frame/Object.h"
#include "fuzz/support/Check.h"
#include "toolkit/HostNumbers.h"

namespace qorltst::fuzz {
namespace {

constexpr std::array kResults{std::int32_t{toolkit::kNoError}, std::int32_t{toolkit::kUnintendedResponse},
                              std::int32_t{toolkit::kParsingWarning}, std::int32_t{toolkit::kParsingError},
                              std::int32_t{toolkit::kSessionProblem}};

Outcome OutcomeWithoutRest(const std::function<Outcome()>& retrieve) {
  const std::int32_t living = Object::Living();
  Outcome outcome = retrieve();
  Demand(Object::Living() == living, "no object outlives its root");
  return outcome;
}

}  // namespace

bool Outcome::Walked() const { return !log.empty() && log.back().message == u"End of ParseTst(in TstParser) Function"; }

Outcome CheckedOutcome(const std::function<Outcome()>& retrieve) {
  const Outcome first = OutcomeWithoutRest(retrieve);
  Demand(std::ranges::find(kResults, first.result) != kResults.end(), "the result is one that retrievals have");
  const Outcome second = OutcomeWithoutRest(retrieve);
  Demand(second.result == first.result, "the same input gives the same result");
  Demand(second.model == first.model, "the same input gives the same model");
  Demand(second.log == first.log, "the same input gives the same log");
  return first;
}

}  // namespace qorltst::fuzz
