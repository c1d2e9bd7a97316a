// Path by path, breadth first: a tree with one node more either sets a property more or does not. See FillSources.h.
#include "tools/reference/FillSources.h"

#include <deque>
#include <iterator>
#include <utility>

#include "frame/TST.h"
#include "tools/reference/NodeNames.h"
#include "tools/reference/ProbeRun.h"

namespace qorltst::reference {
namespace {

/// A path whose tree is to be looked at, with the tree that lacks its last node.
struct Place {
  Path path;
  Snapshot before;
  Snapshot beforeBehindAny;
  /// How many nodes of the path lie at or above the own node of the latest object of a class.
  std::map<const ClassDescription*, std::size_t> ownDepths = {};
};

class Search {
 public:
  FillSources Take() {
    const Snapshot nothing = SnapshotOf(*Make<TST>(*MakeProbeToolkit({}, unread_)));
    places_.push_back({{}, nothing, nothing});
    while (!places_.empty()) {
      Look(places_.front());
      seen_.push_back(std::move(places_.front()));
      places_.pop_front();
    }
    const std::set<Property> unfilled = Unfilled();
    for (const Place& place : seen_) {
      LookBehindOthers(place, unfilled);
    }
    for (auto& [property, sources] : found_.properties) {
      DropCovered(sources, [](Source& source) -> Path& { return source.path; });
    }
    for (auto& [type, paths] : found_.classes) {
      DropCovered(paths, [](Path& path) -> Path& { return path; });
    }
    return std::move(found_);
  }

 private:
  /// Where any node at a place does the same, the others at that place are not worth naming.
  template <class Item, class PathIn>
  static void DropCovered(std::set<Item>& items, PathIn pathIn) {
    const std::set<Item> all = items;
    std::erase_if(items, [&](Item item) {
      Path& path = pathIn(item);
      if (path.empty() || path.back() == kUnknownType) {
        return false;
      }
      path.back() = kUnknownType;
      return all.contains(item);
    });
  }

  void Look(Place& place) {
    const ProbeRun run = Fill({.path = place.path}, place.before);
    const ProbeRun behindAny = Fill({.path = place.path, .inFront = {kUnknownType}}, place.beforeBehindAny);
    NoteOwnNodes(place, run.snapshot);
    NoteSources(place, place.before, run.snapshot, std::nullopt);
    NoteSources(place, place.beforeBehindAny, behindAny.snapshot, kUnknownType);
    for (const NodeTypeId type : TypesBelow(place.path, run)) {
      places_.push_back({Extended(place.path, type), run.snapshot, behindAny.snapshot, place.ownDepths});
    }
  }

  [[nodiscard]] std::set<Property> Unfilled() const {
    std::set<Property> unfilled;
    for (const auto& [type, paths] : found_.classes) {
      for (const Member& row : type->members) {
        if (!found_.properties.contains({type, &row})) {
          unfilled.insert({type, &row});
        }
      }
    }
    return unfilled;
  }

  /// Finds what is read only behind a node of a certain type: behind all types first, then type by type.
  void LookBehindOthers(const Place& place, const std::set<Property>& unfilled) {
    if (place.path.empty() || !FillsBehind(NamedNodeTypes(), place, unfilled)) {
      return;
    }
    for (const NodeTypeId type : NamedNodeTypes()) {
      if (const auto snapshots = FillsBehind({type}, place, unfilled)) {
        NoteSources(place, snapshots->first, snapshots->second, type);
      }
    }
  }

  /// What is set without the last node and with it, of these properties; nothing where that is the same.
  static std::optional<std::pair<Snapshot, Snapshot>> FillsBehind(const std::vector<NodeTypeId>& inFront,
                                                                  const Place& place,
                                                                  const std::set<Property>& properties) {
    const Path parent(place.path.begin(), std::prev(place.path.end()));
    Snapshot before = Fill({.path = parent, .inFront = inFront}, {}).snapshot;
    Snapshot now = Fill({.path = place.path, .inFront = inFront}, before).snapshot;
    const auto isOther = [&](const auto& entry) {
      return entry.second == Origin::Other || !properties.contains(entry.first) || !IsNew(entry.first, before, now);
    };
    std::erase_if(now.set, isOther);
    return now.set.empty() ? std::nullopt : std::make_optional(std::pair(std::move(before), std::move(now)));
  }

  /// An object has its own node where it comes to be, or else where it gets its text.
  void NoteOwnNodes(Place& place, const Snapshot& now) {
    for (const auto& [type, count] : now.objects) {
      const auto before = place.before.objects.find(type);
      const Member* const text = type->FindByName(u"Text");
      const bool isNew = before == place.before.objects.end() || before->second < count;
      const bool hasText = text != nullptr && IsNew({type, text}, place.before, now);
      if (!place.path.empty() && (isNew || hasText)) {
        place.ownDepths[type] = place.path.size();
        found_.classes[type].insert(place.path);
      }
    }
  }

  static bool IsNew(const Property& property, const Snapshot& before, const Snapshot& now) {
    const auto is = now.set.find(property);
    const auto was = before.set.find(property);
    return is != now.set.end() && (was == before.set.end() || was->second != is->second);
  }

  void NoteSources(const Place& place, const Snapshot& before, const Snapshot& now, std::optional<NodeTypeId> behind) {
    for (const auto& [property, origin] : now.set) {
      if (!IsNew(property, before, now)) {
        continue;
      }
      const auto own = place.ownDepths.find(property.first);
      const auto depth = static_cast<std::ptrdiff_t>(own != place.ownDepths.end() ? own->second : 0);
      Source source{{std::next(place.path.begin(), depth), place.path.end()}, origin};
      if (source.path.empty() && origin == Origin::Other) {
        source.path.push_back(place.path.back());
      }
      auto& sources = found_.properties[property];
      if (!behind || !sources.contains(source)) {
        source.behind = behind;
        sources.insert(std::move(source));
      }
    }
  }

  ProbeNotes unread_;
  std::deque<Place> places_;
  std::vector<Place> seen_;
  FillSources found_;
};

}  // namespace

FillSources FindFillSources() { return Search().Take(); }

}  // namespace qorltst::reference
