// See Run.h.
#include "tools/tstdump/Run.h"

#include "simulator/Utf.h"
#include "tools/model/ValueText.h"
#include "tools/tstdump/Inputs.h"
#include "tools/tstdump/Output.h"
#include "tools/tstdump/Progress.h"
#include "tools/tstdump/Record.h"

namespace qorltst::tstdump {
namespace {

/// Goes through the files of a command line.
class Batch {
 public:
  Batch(const Options& options, const Streams& streams)
      : options_(options),
        streams_(streams),
        command_(simulator::ToUtf16(options.command)),
        retriever_(options.trace),
        output_(MakeOutput(options, streams.out)),
        progress_(options.progress ? streams.terminal : nullptr) {}

  ExitCode Run() {
    Inputs inputs(options_, streams_.in);
    for (bool goesOn = true; goesOn;) {
      Trying([&] {
        const std::optional<Input> input = inputs.Next();
        goesOn = input.has_value();
        if (input) {
          ReadFile(*input);
        }
      });
    }
    output_->End();
    progress_.Clear();
    if (isUnreadable_) {
      return ExitCode::SomeUnreadable;
    }
    return isNotParsed_ ? ExitCode::SomeNotParsed : ExitCode::AllGood;
  }

 private:
  /// Does it; where a file fails there, says so and lets the batch go on.
  template <class Action>
  void Trying(Action action) {
    try {
      action();
    } catch (const InputError& error) {
      Complain(error.what());
    } catch (const simulator::RecordingError& error) {
      Complain(error.what());
    }
  }

  void ReadFile(const Input& input) {
    DisplayReader reader(input.stream, input.name);
    bool isEmpty = true;
    for (bool goesOn = true; goesOn;) {
      // Where reading fails, the reader goes on behind the damage.
      Trying([&] {
        std::optional<Display> display = ReadDisplay(reader, isEmpty);
        goesOn = display.has_value();
        if (display && (command_.empty() || display->command == command_)) {
          WriteDisplay(*std::move(display));
        }
      });
    }
    if (isEmpty) {
      Complain(input.name + ": there is no display in the file");
    }
  }

  /// Also a display that cannot be read makes the file one that is not empty.
  static std::optional<Display> ReadDisplay(DisplayReader& reader, bool& isEmpty) {
    const bool wasEmpty = std::exchange(isEmpty, false);
    std::optional<Display> display = reader.Next();
    isEmpty = wasEmpty && !display;
    return display;
  }

  void WriteDisplay(Display display) {
    const Retrieved retrieved = retriever_.Retrieve(std::move(display));
    isNotParsed_ = isNotParsed_ || !retrieved.IsGood() || (options_.strict && retrieved.HasWarnings());
    output_->Write(retrieved);
    progress_.Count(retrieved.display.source);
  }

  void Complain(const std::string& message) {
    isUnreadable_ = true;
    progress_.Clear();
    streams_.messages << "tstdump: " << model::PrintableText(std::string_view(message)) << std::endl;
  }

  const Options& options_;
  const Streams& streams_;
  std::u16string command_;
  Retriever retriever_;
  std::unique_ptr<Output> output_;
  Progress progress_;
  bool isNotParsed_ = false;
  bool isUnreadable_ = false;
};

ExitCode RunWith(const Options& options, const Streams& streams) {
  if (options.schema) {
    Send(streams.out, Schema(options.selection, options.filter).dump(2) + '\n');
    return ExitCode::AllGood;
  }
  return Batch(options, streams).Run();
}

}  // namespace

ExitCode Run(std::vector<std::string> arguments, const Streams& streams) {
  try {
    return RunWith(ReadOptions(std::move(arguments)), streams);
  } catch (const Information& information) {
    streams.out << information.text << std::flush;
    return streams.out ? ExitCode::AllGood : ExitCode::NotWritten;
  } catch (const UsageError& error) {
    streams.messages << "tstdump: " << error.what() << "\nTry tstdump --help\n";
    return ExitCode::Usage;
  } catch (const OutputError& error) {
    streams.messages << "tstdump: " << error.what() << '\n';
    return ExitCode::NotWritten;
  }
}

}  // namespace qorltst::tstdump
