// See Record.h.
#include "tools/tstdump/Record.h"

#include "tools/model/JsonSchema.h"

namespace qorltst::tstdump {
namespace {

using model::Json;
using model::SchemaReference;

Json LogJson(const std::vector<simulator::LogEntry>& log) {
  Json entries = Json::array();
  for (const simulator::LogEntry& entry : log) {
    entries.push_back({{"kind", simulator::LogKindName(entry.kind)},
                       {"source", model::TextJson(entry.source)},
                       {"number", entry.number},
                       {"message", model::TextJson(entry.message)}});
  }
  return entries;
}

Json MatchesJson(const Retrieved& retrieved, const model::Selection& selection, model::Filter filter) {
  Json matches = Json::array();
  if (retrieved.ticket) {
    for (const model::Match& match : selection.Find(*retrieved.ticket, filter)) {
      matches.push_back({{"path", match.path}, {"object", model::ToJson(match.object, filter, match.rows)}});
    }
  }
  return matches;
}

/// An object whose members must all be there.
Json Closed(Json properties) {
  Json required = Json::array();
  for (const auto& property : properties.items()) {
    required.push_back(property.key());
  }
  return {{"type", "object"},
          {"properties", std::move(properties)},
          {"required", std::move(required)},
          {"additionalProperties", false}};
}

Json ListOf(Json items, const char* explanation) {
  return {{"description", explanation}, {"type", "array"}, {"items", std::move(items)}};
}

Json LogSchema() {
  return ListOf(Closed({{"kind", {{"type", "string"}}},
                        {"source", SchemaReference("text")},
                        {"number", {{"type", "integer"}}},
                        {"message", SchemaReference("text")}}),
                "The errors that the component logged, or with --trace all entries.");
}

Json TicketSchema() {
  return {{"description", "The ticket; null where there is none."},
          {"anyOf", {{{"type", "null"}}, SchemaReference("TST")}}};
}

Json MatchesSchema() {
  return ListOf(Closed({{"path", {{"type", "string"}}}, {"object", SchemaReference("item")}}),
                "The objects that were asked for.");
}

}  // namespace

Json ToJson(const Retrieved& retrieved, const model::Selection& selection, model::Filter filter) {
  Json record = {{"source", model::BytesJson(retrieved.display.source)},
                 {"line", retrieved.display.line},
                 {"command", model::TextJson(retrieved.display.command)},
                 {"result", retrieved.result},
                 {"meaning", MeaningOf(retrieved.result)},
                 {"brokenOffIn", nullptr}};
  if (!retrieved.brokenOffIn.empty()) {
    record["brokenOffIn"] = model::TextJson(retrieved.brokenOffIn);
  }
  if (!selection.IsEverything()) {
    record["matches"] = MatchesJson(retrieved, selection, filter);
  } else if (retrieved.ticket) {
    record["ticket"] = model::ToJson(*retrieved.ticket, filter);
  } else {
    record["ticket"] = nullptr;
  }
  record["log"] = LogJson(retrieved.log);
  return record;
}

Json Schema(const model::Selection& selection, model::Filter filter) {
  Json properties = {
      {"source", SchemaReference("bytes", "The file.")},
      {"line", {{"description", "Where the display starts in it."}, {"type", "integer"}}},
      {"command", SchemaReference("text", "The display command.")},
      {"result", {{"description", "The component's result code."}, {"type", "integer"}}},
      {"meaning", {{"description", "What the result code says."}, {"type", "string"}}},
      {"brokenOffIn",
       {{"description", "Where a failure ended the retrieval, so that the ticket is there in part; else null."},
        {"anyOf", {{{"type", "null"}}, SchemaReference("text")}}}}};
  if (selection.IsEverything()) {
    properties["ticket"] = TicketSchema();
  } else {
    properties["matches"] = MatchesSchema();
    filter = {};  // an object may be there in part
  }
  properties["log"] = LogSchema();
  Json schema = {{"$schema", "http://json-schema.org/draft-07/schema#"},
                 {"title", "A display and the stored ticket in it, as tstdump writes it"}};
  schema.update(Closed(std::move(properties)));
  schema["definitions"] = model::SchemaDefinitions(filter);
  return schema;
}

}  // namespace qorltst::tstdump
