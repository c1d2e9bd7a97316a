// Lines from a stream. See Input.h.
#include <istream>
#include <ostream>

#include "tools/shell/Input.h"

namespace qorltst::shell {
namespace {

class StreamInput final : public Input {
 public:
  StreamInput(std::istream& in, std::ostream& out) : in_(in), out_(out) {}

  std::optional<std::string> Next() override {
    std::string line;
    if (!std::getline(in_, line)) {
      return std::nullopt;
    }
    out_ << kPrompt << line << '\n';
    return line;
  }

 private:
  std::istream& in_;
  std::ostream& out_;
};

}  // namespace

std::unique_ptr<Input> ReadStream(std::istream& in, std::ostream& out) {
  return std::make_unique<StreamInput>(in, out);
}

}  // namespace qorltst::shell
