// One class for each form. See Output.h.
#include "tools/tstdump/Output.h"

#include "tools/model/TextTree.h"
#include "tools/model/ValueText.h"
#include "tools/tstdump/PageOutput.h"
#include "tools/tstdump/Record.h"

namespace qorltst::tstdump {
namespace {

constexpr int kJsonIndent = 2;

class FormOutput : public Output {
 public:
  FormOutput(const Options& options, std::ostream& out) : options_(options), out_(out) {}

 protected:
  const Options& options_;
  std::ostream& out_;
};

class TextOutput final : public FormOutput {
 public:
  using FormOutput::FormOutput;

  void Write(const Retrieved& retrieved) override {
    text_ = text_.empty() ? "" : "\n";
    const Display& display = retrieved.display;
    text_ += model::PrintableText(display.source) + ':' + std::to_string(display.line) + ": " +
             model::PrintableText(display.command) + ": " + std::string(MeaningOf(retrieved.result)) + " (" +
             std::to_string(retrieved.result) + ")\n";
    if (!retrieved.brokenOffIn.empty()) {
      text_ += "  broken off in " + model::PrintableText(retrieved.brokenOffIn) + '\n';
    }
    if (retrieved.ticket) {
      AddTicket(*retrieved.ticket);
    }
    AddLog(retrieved.log);
    Send(out_, text_);
  }

 private:
  void AddTicket(TST& ticket) {
    if (options_.selection.IsEverything()) {
      model::PrintTree(text_, ticket, options_.filter, 1);
      return;
    }
    for (const model::Match& match : options_.selection.Find(ticket, options_.filter)) {
      const bool isRoot = match.path.empty();
      if (!isRoot) {
        text_ += "  " + match.path + '\n';
      }
      model::PrintTree(text_, match.object, options_.filter, isRoot ? 1 : 2, match.rows);
    }
  }

  void AddLog(const std::vector<simulator::LogEntry>& log) {
    for (const simulator::LogEntry& entry : log) {
      text_ += "  log: " + model::PrintableText(std::string_view(FormatLogEntry(entry))) + '\n';
    }
  }

  std::string text_;
};

class JsonOutput final : public FormOutput {
 public:
  using FormOutput::FormOutput;

  void Write(const Retrieved& retrieved) override {
    const std::string text = ToJson(retrieved, options_.selection, options_.filter).dump(kJsonIndent);
    Send(out_, (isFirst_ ? "[\n" : ",\n") + text);
    isFirst_ = false;
  }

  void End() override { Send(out_, isFirst_ ? "[]\n" : "\n]\n"); }

 private:
  bool isFirst_ = true;
};

class JsonLinesOutput final : public FormOutput {
 public:
  using FormOutput::FormOutput;

  void Write(const Retrieved& retrieved) override {
    Send(out_, ToJson(retrieved, options_.selection, options_.filter).dump() + '\n');
  }
};

template <class Form>
std::unique_ptr<Output> Make(const Options& options, std::ostream& out) {
  return std::make_unique<Form>(options, out);
}

}  // namespace

std::unique_ptr<Output> MakeOutput(const Options& options, std::ostream& out) {
  switch (options.format) {
    case Format::Json:
      return Make<JsonOutput>(options, out);
    case Format::JsonLines:
      return Make<JsonLinesOutput>(options, out);
    case Format::Html:
      return Make<PageOutput>(options, out);
    case Format::Text:
      break;
  }
  return Make<TextOutput>(options, out);
}

void Send(std::ostream& out, std::string_view text) {
  out.write(text.data(), static_cast<std::streamsize>(text.size()));
  if (!out.flush()) {
    throw OutputError("the output cannot be written");
  }
}

}  // namespace qorltst::tstdump
