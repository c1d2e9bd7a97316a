// Registration with undo. See Registration.h.
#include "automation/Registration.h"

#include <functional>
#include <vector>

#include "automation/Errors.h"

namespace qorltst::automation {
namespace {

/// One string in the registry; the key is made where it is not there.
struct Entry {
  std::u16string key;
  std::u16string name;
  std::u16string value;
};

std::u16string Wide(const std::string& ascii) { return {ascii.begin(), ascii.end()}; }

std::u16string Braced(const Guid& guid) { return u"{" + Wide(ToString(guid)) + u"}"; }

/// The names under which one class stands in the registry.
struct ClassKeys {
  ProgramIds programIds;
  std::u16string classId;
  std::u16string classKey;

  ClassKeys(const Library& library, const ClassDescription& description)
      : programIds(library.ProgramIdsOf(description)),
        classId(Braced(library.IdentityOf(description.name)->classId)),
        classKey(u"CLSID\\" + classId) {}
};

void AddClassEntries(std::vector<Entry>& entries, const Library& library, const ClassDescription& description,
                     const std::u16string& modulePath) {
  const ClassKeys keys(library, description);
  const std::u16string help(description.help);
  const std::u16string version =
      Wide(std::to_string(library.majorVersion) + "." + std::to_string(library.minorVersion));
  const std::vector<Entry> own{
      {keys.programIds.plain, u"", help},
      {keys.programIds.plain + u"\\CLSID", u"", keys.classId},
      {keys.programIds.plain + u"\\CurVer", u"", keys.programIds.versioned},
      {keys.programIds.versioned, u"", help},
      {keys.programIds.versioned + u"\\CLSID", u"", keys.classId},
      {keys.classKey, u"", help},
      {keys.classKey + u"\\InprocServer32", u"", modulePath},
      {keys.classKey + u"\\InprocServer32", u"ThreadingModel", std::u16string(kThreadingModel)},
      {keys.classKey + u"\\ProgID", u"", keys.programIds.versioned},
      {keys.classKey + u"\\VersionIndependentProgID", u"", keys.programIds.plain},
      {keys.classKey + u"\\Version", u"", version},
      {keys.classKey + u"\\Programmable", u"", u""},
  };
  entries.insert(entries.end(), own.begin(), own.end());
  if (library.typed) {
    entries.push_back({keys.classKey + u"\\TypeLib", u"", Braced(library.id)});
  }
}

/// Whether a name stands for a class of another library.
bool IsTaken(const std::u16string& name, const std::u16string& classId, Registry& registry) {
  const auto owner = registry.Read(name + u"\\CLSID", u"");
  return owner.has_value() && CompareNames(*owner, classId) != 0;
}

bool IsAnyNameTaken(const Library& library, Registry& registry) {
  for (const ClassDescription* const description : library.CreatableClasses()) {
    const ClassKeys keys(library, *description);
    if (IsTaken(keys.programIds.plain, keys.classId, registry) ||
        IsTaken(keys.programIds.versioned, keys.classId, registry)) {
      return true;
    }
  }
  return false;
}

/// Remembers how to take back what was done; does so unless it is told to keep.
class Undo {
 public:
  Undo() = default;
  Undo(const Undo&) = delete;
  Undo& operator=(const Undo&) = delete;
  ~Undo() {
    while (!steps_.empty()) {
      steps_.back()();
      steps_.pop_back();
    }
  }

  void Add(std::function<void()> step) { steps_.push_back(std::move(step)); }
  void Keep() noexcept { steps_.clear(); }

 private:
  std::vector<std::function<void()>> steps_;
};

/// Makes the key and those above it that are not there.
void MakeKeys(const std::u16string& key, Registry& registry, Undo& undo) {
  if (registry.HasKey(key)) {
    return;
  }
  if (const std::size_t end = key.rfind(u'\\'); end != std::u16string::npos) {
    MakeKeys(key.substr(0, end), registry, undo);
  }
  undo.Add([&registry, key] { registry.RemoveKey(key); });
  RaiseIfFailed(registry.MakeKey(key));
}

void WriteEntry(const Entry& entry, Registry& registry, Undo& undo) {
  MakeKeys(entry.key, registry, undo);
  const auto before = registry.Read(entry.key, entry.name);
  undo.Add([&registry, entry, before] {
    if (before) {
      registry.Write(entry.key, entry.name, *before);
    } else {
      registry.RemoveValue(entry.key, entry.name);
    }
  });
  RaiseIfFailed(registry.Write(entry.key, entry.name, entry.value));
}

/// The library that was registered before, if any, comes back where this fails.
void WriteTypeLibrary(const Library& library, const std::u16string& modulePath, Registry& registry, Undo& undo) {
  const auto before = registry.TypeLibraryPath(SystemGuid(library.id), library.majorVersion, library.minorVersion);
  undo.Add([&registry, &library, before] {
    registry.RemoveTypeLibrary(SystemGuid(library.id), library.majorVersion, library.minorVersion);
    if (before) {
      registry.AddTypeLibrary(*before);
    }
  });
  RaiseIfFailed(registry.AddTypeLibrary(modulePath));
}

void RegisterAll(const Library& library, const std::u16string& modulePath, Registry& registry) {
  std::vector<Entry> entries;
  for (const ClassDescription* const description : library.CreatableClasses()) {
    AddClassEntries(entries, library, *description, modulePath);
  }
  Undo undo;
  for (const Entry& entry : entries) {
    WriteEntry(entry, registry, undo);
  }
  if (library.typed) {
    WriteTypeLibrary(library, modulePath, registry, undo);
  }
  undo.Keep();
}

}  // namespace

HRESULT Register(const Library& library, const std::u16string& modulePath, Registry& registry) noexcept {
  // cppcheck-suppress throwInNoexceptFunction  ; what is thrown ends at the edge
  return AtEdge([&] {
    if (IsAnyNameTaken(library, registry)) {
      throw toolkit::RuntimeError(kNameTaken, library.name, u"A name of this library belongs to another one.");
    }
    RegisterAll(library, modulePath, registry);
    return S_OK;
  });
}

HRESULT Unregister(const Library& library, Registry& registry) noexcept {
  return AtEdge([&] {
    HRESULT first = S_OK;
    const auto note = [&first](HRESULT code) { first = FAILED(first) ? first : code; };
    for (const ClassDescription* const description : library.CreatableClasses()) {
      const ClassKeys keys(library, *description);
      // A name that another library took over since is no longer ours to remove.
      for (const std::u16string& name : {keys.programIds.plain, keys.programIds.versioned}) {
        note(IsTaken(name, keys.classId, registry) ? S_OK : registry.RemoveKey(name));
      }
      note(registry.RemoveKey(keys.classKey));
    }
    if (library.typed && registry.HasKey(u"TypeLib\\" + Braced(library.id))) {
      note(registry.RemoveTypeLibrary(SystemGuid(library.id), library.majorVersion, library.minorVersion));
    }
    return first;
  });
}

}  // namespace qorltst::automation
