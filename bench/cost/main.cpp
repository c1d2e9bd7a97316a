// What a retrieval costs: toolkit calls against the least possible, bytes, and, run under a counter of instructions,
// the component against the bare walk. `./run bench` makes the table of docs/performance.md from it.
//
//   qorl_cost calls <display>                          calls, lines and texts of one retrieval
//   qorl_cost bytes                                    bytes and allocations of an empty object of each class
//   qorl_cost component|bare <display> <retrievals>    retrieves so often and says nothing
//
// A display is a file with one screen, "segments:100" or "screens:100".
#include <charconv>
#include <cstdlib>
#include <exception>
#include <iomanip>
#include <iostream>
#include <new>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

#include "bench/cost/Measured.h"
#include "bench/cost/Plan.h"
#include "frame/PublicClasses.h"
#include "frame/TST.h"

namespace {

std::size_t allocations = 0;
std::size_t bytes = 0;

}  // namespace

void* operator new(std::size_t size) {
  ++allocations;
  bytes += size;
  if (void* const memory = std::malloc(size)) {  // NOLINT(cppcoreguidelines-no-malloc): this is the allocator
    return memory;
  }
  throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { std::free(memory); }  // NOLINT(cppcoreguidelines-no-malloc): as above
void operator delete(void* memory, std::size_t /*size*/) noexcept {
  std::free(memory);  // NOLINT(cppcoreguidelines-no-malloc): as above
}

namespace qorltst::cost {
namespace {

std::size_t NumberOf(std::string_view text) {
  std::size_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size() || number == 0) {
    throw std::invalid_argument("a number is wanted, not \"" + std::string(text) + "\"");
  }
  return number;
}

Display DisplayNamed(const std::string& name) {
  const std::size_t colon = name.find(':');
  const std::string kind = name.substr(0, colon);
  if (kind == "segments") {
    return WithSegments(NumberOf(name.substr(colon + 1)));
  }
  if (kind == "screens") {
    return WithScreens(NumberOf(name.substr(colon + 1)));
  }
  return FromFile(name);
}

void RetrieveByComponent(MeasuredToolkit& toolkit) {
  const auto tst = Make<TST>(toolkit);
  if (tst->RetrieveCurrentTst(toolkit.Session().Get()) != 0) {
    throw std::runtime_error("the retrieval failed");
  }
}

/// The same conversation with the host and the same parses; then the walk of the last parser's tree, and the lines.
void RetrieveBare(MeasuredToolkit& toolkit, const Display& display, const Notes& notes, std::size_t texts) {
  const auto session = toolkit.Session();
  session->SetOption(toolkit::kSessionOption, false);
  std::u16string whole;
  for (std::size_t i = 0; i < display.screens.size(); ++i) {
    const std::u16string page = session->SendCommand(i == 0 ? u"TQT" : u"MD", true)->Text();
    const auto parser = toolkit.CreateParser();
    parser->Parse(page, toolkit::kParseMode);
    parser->FindNode(toolkit::NodeTypeId::MoreScreens);
    whole += page;
  }
  const auto parser = toolkit.CreateParser();
  parser->Parse(whole, toolkit::kParseMode);
  Harvested harvested;
  harvested.texts.reserve(texts);
  WalkBare(*parser, *notes.plans.back(), harvested);
  const auto logger = toolkit.CreateLogger();
  for (const Line& line : notes.lines) {
    logger->Write(line.kind, line.source, line.number, line.message);
  }
}

Notes NotesOf(const Display& display) {
  Notes notes;
  const auto toolkit = Make<MeasuredToolkit>(display, &notes);
  RetrieveByComponent(*toolkit);
  return notes;
}

std::size_t TextsOf(const Display& display, const Notes& notes) {
  const auto toolkit = Make<MeasuredToolkit>(display);
  Harvested harvested;
  WalkBare(*toolkit->CreateParser(), *notes.plans.back(), harvested);
  return harvested.texts.size();
}

void PrintCalls(const std::string& name) {
  const Display display = DisplayNamed(name);
  const Notes notes = NotesOf(display);
  Notes bare;
  const auto toolkit = Make<MeasuredToolkit>(display, &bare);
  const std::size_t texts = TextsOf(display, notes);
  RetrieveBare(*toolkit, display, notes, texts);
  std::cout << notes.counts.calls << ' ' << bare.counts.calls << ' ' << notes.counts.lines << ' ' << texts << '\n';
}

void PrintBytes() {
  const Display display = WithSegments(1);
  const auto toolkit = Make<MeasuredToolkit>(display);
  for (const ClassDescription* const description : PublicClasses()) {
    if (description->create == nullptr) {
      continue;
    }
    bytes = 0;
    allocations = 0;
    const auto object = description->create(*toolkit);
    std::cout << std::string(description->name.begin(), description->name.end()) << ' ' << bytes << ' ' << allocations
              << '\n';
  }
}

void Repeat(const std::string& what, const std::string& name, std::size_t retrievals) {
  const Display display = DisplayNamed(name);
  const Notes notes = NotesOf(display);
  const std::size_t texts = TextsOf(display, notes);
  const auto toolkit = Make<MeasuredToolkit>(display);
  for (std::size_t i = 0; i < retrievals; ++i) {
    what == "bare" ? RetrieveBare(*toolkit, display, notes, texts) : RetrieveByComponent(*toolkit);
  }
}

int Run(std::span<char*> arguments) {
  const std::string what = arguments.size() > 1 ? arguments[1] : "";
  if (what == "calls" && arguments.size() == 3) {
    PrintCalls(arguments[2]);
  } else if (what == "bytes" && arguments.size() == 2) {
    PrintBytes();
  } else if ((what == "component" || what == "bare") && arguments.size() == 4) {
    Repeat(what, arguments[2], NumberOf(arguments[3]));
  } else {
    std::cerr << "usage: qorl_cost calls <display> | bytes | component <display> <retrievals> | bare <display> "
                 "<retrievals>\n";
    return 2;
  }
  return 0;
}

}  // namespace
}  // namespace qorltst::cost

int main(int count, char** arguments) {
  try {
    return qorltst::cost::Run({arguments, static_cast<std::size_t>(count)});
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
}
