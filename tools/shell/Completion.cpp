// See Completion.h.
#include "tools/shell/Completion.h"

#include <algorithm>
#include <filesystem>

#include "frame/PublicClasses.h"
#include "tools/model/ObjectPath.h"
#include "tools/model/ValueText.h"

namespace qorltst::shell {
namespace {

using Words = std::vector<std::string>;

bool StartsAs(std::string_view word, std::string_view start) {
  return word.size() >= start.size() && IsSameName(word.substr(0, start.size()), start);
}

/// The object that a path leads to; nothing where it leads to none.
Object* Follow(TST& ticket, std::string_view path) {
  try {
    const model::Content content = model::FollowPath(ticket, path).content;
    Object* const* const object = std::get_if<Object*>(&content);
    return object != nullptr ? *object : nullptr;
  } catch (const model::PathError&) {
    return nullptr;
  }
}

/// The members of the object at the path, which ends with a dot or is empty.
void AddMembers(Words& words, Object& object, const std::string& path) {
  for (const Member& row : object.Description().members) {
    if (model::ContentOf(object, row)) {
      words.push_back(path + model::NameText(row.name));
    }
  }
}

void AddPaths(Words& words, TST& ticket, std::string_view word) {
  const std::size_t end = word.find_last_of(".(");
  if (end == std::string_view::npos) {
    AddMembers(words, ticket, {});
    return;
  }
  Object* const object = Follow(ticket, word.substr(0, end));
  if (object == nullptr) {
    return;
  }
  const std::string path(word.substr(0, end + 1));
  const Collection* const collection = model::AsCollection(*object);
  if (word[end] == '.') {
    AddMembers(words, *object, path);
  } else if (collection != nullptr) {
    for (std::int32_t i = 1; i <= collection->Count(); ++i) {
      words.push_back(path + std::to_string(i) + ')');
    }
  }
}

void AddFiles(Words& words, std::string_view word) {
  const std::size_t slash = word.find_last_of('/');
  const std::string folder(word.substr(0, slash == std::string_view::npos ? 0 : slash + 1));
  std::error_code failed;
  for (const auto& entry : std::filesystem::directory_iterator(folder.empty() ? "." : folder, failed)) {
    const std::string name = entry.path().filename().string();
    // Hidden ones only for who asks for them.
    if (!name.starts_with('.') || word.substr(folder.size()).starts_with('.')) {
      words.push_back(folder + name + (entry.is_directory(failed) ? "/" : ""));
    }
  }
}

/// A file's name is the rest of the line, blanks included; what is offered stands in the place of its last word alone.
void AddFileWords(Words& words, std::string_view rest, std::string_view word) {
  Words files;
  AddFiles(files, rest);
  const std::size_t before = rest.size() - word.size();
  for (const std::string& file : files) {
    if (StartsAs(file, rest)) {
      words.push_back(file.substr(before));
    }
  }
}

/// `rest` is what follows the command, `word` its last word.
void AddArguments(Words& words, const Shell& shell, Shell::Argument argument, std::string_view rest,
                  std::string_view word) {
  if (argument != Shell::Argument::File && rest != word) {
    return;
  }
  switch (argument) {
    case Shell::Argument::File:
      return AddFileWords(words, rest, word);
    case Shell::Argument::Entry:
      words = shell.CurrentHost().Entries();
      return;
    case Shell::Argument::Path:
      return AddPaths(words, shell.Ticket(), word);
    case Shell::Argument::Class:
      std::ranges::transform(PublicClasses(), std::back_inserter(words),
                             [](const ClassDescription* description) { return model::NameText(description->name); });
      return;
    case Shell::Argument::Switch:
      words = {"off", "on"};
      return;
    case Shell::Argument::None:
      return;
  }
}

}  // namespace

Words Complete(const Shell& shell, std::string_view line) {
  const std::string_view word = line.substr(line.find_last_of(" \t") + 1);
  const std::string_view trimmed = line.substr(std::min(line.find_first_not_of(" \t"), line.size()));
  const std::size_t blank = trimmed.find_first_of(" \t");
  Words words;
  if (blank == std::string_view::npos) {
    words = shell.CurrentHost().Entries();
    AddPaths(words, shell.Ticket(), word);
  }
  for (const Shell::Command& command : Shell::Commands()) {
    if (blank == std::string_view::npos) {
      words.emplace_back(command.name);
    } else if (IsSameName(command.name, trimmed.substr(0, blank))) {
      const std::string_view rest = trimmed.substr(blank);
      const std::size_t start = rest.find_first_not_of(" \t");
      AddArguments(words, shell, command.argument, start == std::string_view::npos ? word : rest.substr(start), word);
    }
  }
  std::erase_if(words, [word](const std::string& candidate) { return !StartsAs(candidate, word); });
  std::ranges::sort(words);
  return words;
}

std::string CommonStart(const Words& words) {
  std::string common = words.empty() ? std::string() : words.front();
  for (const std::string& word : words) {
    while (!StartsAs(word, common)) {
      common.pop_back();
    }
  }
  return common;
}

}  // namespace qorltst::shell
