// Files, folders and lists; see tools/tstdump/Inputs.h.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "tools/tstdump/Inputs.h"

namespace qorltst::tstdump {
namespace {

namespace fs = std::filesystem;

/// A folder with files in it, gone after the test.
class InputsTest : public ::testing::Test {
 protected:
  InputsTest() { fs::create_directories(folder_); }
  ~InputsTest() override { fs::remove_all(folder_); }

  std::string Write(const std::string& name, const std::string& text = "x") {
    const fs::path path = folder_ / name;
    fs::create_directories(path.parent_path());
    std::ofstream(path) << text;
    return path.string();
  }

  /// The names in order, without the folder; messages of errors in between.
  std::vector<std::string> Names(const Options& options, const std::string& input = {}) {
    std::istringstream standardInput(input);
    Inputs inputs(options, standardInput);
    std::vector<std::string> names;
    while (true) {
      try {
        const std::optional<Input> next = inputs.Next();
        if (!next) {
          return names;
        }
        names.push_back(Short(next->name));
      } catch (const InputError& error) {
        names.push_back(Short(error.what()));
      }
    }
  }

  std::string Short(std::string name) const {
    const std::string prefix = folder_.string() + '/';
    return name.starts_with(prefix) ? name.substr(prefix.size()) : name;
  }

  // The parameterless name would be shared by tests that run at the same time.
  fs::path folder_ = fs::temp_directory_path() /
                     ("qorl-inputs-" + std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()) +
                      std::to_string(::getpid()));
};

using Lines = std::vector<std::string>;

TEST_F(InputsTest, TakesFilesInTheirOrderAndGoesOnBehindAMissingOne) {
  Options options;
  options.files = {Write("b"), (folder_ / "none").string(), Write("a"), "-"};
  EXPECT_EQ(Names(options), (Lines{"b", "none: No such file or directory", "a", "-"}));
}

TEST_F(InputsTest, TakesTheFilesOfAFolderAndBelowInTheOrderOfTheirNames) {
  Write("d/2/x");
  Write("d/1");
  std::vector<std::string> expected{"d/1", "d/2/x"};
  for (char name = 'z'; name >= 'a'; --name) {
    Write(std::string("d/") + name);
    expected.insert(expected.begin() + 2, std::string("d/") + name);
  }
  Write("d/.hidden");
  Write("d/.git/y");
  fs::create_directory_symlink(folder_ / "d", folder_ / "d" / "loop");
  Options options;
  options.files = {(folder_ / "d").string()};
  EXPECT_EQ(Names(options), expected);
}

TEST_F(InputsTest, ReadsNamesFromAList) {
  Options options;
  options.files = {Write("first")};
  options.filesFrom = Write("list", Write("b c") + "\n\n" + Write("a"));
  EXPECT_EQ(Names(options), (Lines{"first", "b c", "a"}));
}

TEST_F(InputsTest, ReadsNamesThatEndWithNulFromTheInput) {
  Options options;
  options.filesFrom = "-";
  options.nulEnds = true;
  const std::string odd = Write("two\nlines");
  EXPECT_EQ(Names(options, odd + '\0' + odd + '\0'), (Lines{"two\nlines", "two\nlines"}));
}

TEST_F(InputsTest, NamesAListThatCannotBeRead) {
  Options options;
  options.filesFrom = (folder_ / "none").string();
  EXPECT_EQ(Names(options), Lines{"none: No such file or directory"});
}

}  // namespace
}  // namespace qorltst::tstdump
