// Identifiers of the simulated toolkit's classes: never change one. See Identities.h.
#include "simulator/automation/Identities.h"

#include <array>

#include "simulator/automation/LogReaderObject.h"
#include "simulator/automation/LoggerObject.h"
#include "simulator/automation/NodeObject.h"
#include "simulator/automation/SessionObject.h"

namespace qorltst::simulator {
namespace {

using automation::ClassIdentity;
using automation::ParseGuid;

constexpr std::array kIdentities{
    ClassIdentity{u"ParseNode", ParseGuid("f2c1b7c6-1bf0-4cb3-8eb9-e8f9b32e235a"),
                  ParseGuid("57f73af0-1f1b-4407-8e77-f062d51aa51c")},
    ClassIdentity{u"NodeItem", ParseGuid("25d809a8-4c64-4637-8155-153241e64d89"),
                  ParseGuid("9da731eb-c5da-46e5-9762-c5f24aa0f9cc")},
    ClassIdentity{u"HostLogger", ParseGuid("f6768415-8214-4763-b5c5-e8313a3f6bdb"),
                  ParseGuid("77242a11-4d2b-4e55-99ce-f1a8edc12ba7")},
    ClassIdentity{u"HostResponse", ParseGuid("24410b22-5d8d-459c-a9b4-9d0fde8ee932"),
                  ParseGuid("3878d60e-b135-4013-8053-88fd00cef3de")},
    ClassIdentity{u"RecordedSession", ParseGuid("ba8a69eb-e8bc-4256-8a2d-924d1e535d4e"),
                  ParseGuid("f87cc1e3-08f4-4d23-9682-ce26574eaa4b")},
    ClassIdentity{u"LogReader", ParseGuid("84f4d42c-5537-4f9d-a935-371b9966c9bd"),
                  ParseGuid("85042bb0-8ed5-40e7-a042-67b6b61d8456")},
};

constexpr std::array<const ClassDescription*, 6> kClasses{&NodeObject::kDescription,    &ItemObject::kDescription,
                                                          &LoggerObject::kDescription,  &ResponseObject::kDescription,
                                                          &SessionObject::kDescription, &LogReaderObject::kDescription};

std::span<const ClassDescription* const> Classes() noexcept { return kClasses; }

constexpr automation::Library kLibrary{.name = u"QorlHostToolkit",
                                       .help = u"Simulated host toolkit",
                                       .id = ParseGuid("e503e38e-4ca1-46f4-975e-a1f6251aef4a"),
                                       .classes = &Classes,
                                       .identities = kIdentities,
                                       .typed = false};

}  // namespace

const automation::Library& ToolkitLibrary() noexcept { return kLibrary; }

}  // namespace qorltst::simulator
