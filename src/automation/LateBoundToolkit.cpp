// The registered toolkit. See LateBoundToolkit.h.
#include "automation/LateBoundToolkit.h"

#include <atomic>
#include <cstdint>

#include "automation/LateBoundLogger.h"
#include "automation/LateBoundNode.h"
#include "toolkit/RuntimeError.h"

namespace qorltst::automation {
namespace {

constexpr std::int32_t kCannotCreate = 429;

constexpr const wchar_t* kParserProgramId = L"QorlHostToolkit.ParseNode";
constexpr const wchar_t* kLoggerProgramId = L"QorlHostToolkit.HostLogger";

/// Not counted and without a destructor: the toolkit itself takes its address away when it ends.
thread_local LateBoundToolkit* ofThisThread = nullptr;

/// How many toolkits ended on a thread whose own they were not, and how many of those this thread knows of. A thread
/// that finds a new one forgets its toolkit, which may be the one that ended; at worst it makes another.
std::atomic<std::uint32_t> endedElsewhere{0};
thread_local std::uint32_t endedElsewhereKnown = 0;

ComRef<IClassFactory> FindFactory(const wchar_t* programId) {
  CLSID classId;
  ComRef<IClassFactory> factory;
  if (FAILED(CLSIDFromProgID(programId, &classId)) ||
      FAILED(CoGetClassObject(classId, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER, nullptr, IID_IClassFactory,
                              factory.ReceiveAny()))) {
    return nullptr;
  }
  return factory;
}

}  // namespace

Ref<toolkit::Toolkit> LateBoundToolkit::OfThisThread() {
  const std::uint32_t ended = endedElsewhere.load(std::memory_order_acquire);
  if (std::exchange(endedElsewhereKnown, ended) != ended) {
    ofThisThread = nullptr;
  }
  if (ofThisThread == nullptr) {
    return Make<LateBoundToolkit>();
  }
  return Ref<toolkit::Toolkit>(ofThisThread);
}

LateBoundToolkit::LateBoundToolkit() : nodeNames_(MakeNodeNames()), loggerNames_(MakeLoggerNames()) {
  ofThisThread = this;
}

LateBoundToolkit::~LateBoundToolkit() {
  // An object that was handed to another thread may end there.
  if (ofThisThread == this) {
    ofThisThread = nullptr;
  } else {
    endedElsewhere.fetch_add(1, std::memory_order_release);
  }
}

Ref<toolkit::ParseNode> LateBoundToolkit::CreateParser() {
  return Make<LateBoundNode>(Create(parserFactory_, kParserProgramId), nodeNames_);
}

Ref<toolkit::HostLogger> LateBoundToolkit::CreateLogger() {
  return Make<LateBoundLogger>(Create(loggerFactory_, kLoggerProgramId), loggerNames_);
}

ComRef<IDispatch> LateBoundToolkit::Create(ComRef<IClassFactory>& factory, const wchar_t* programId) {
  if (!factory) {
    factory = FindFactory(programId);
  }
  ComRef<IDispatch> made;
  if (!factory || FAILED(factory->CreateInstance(nullptr, IID_IDispatch, made.ReceiveAny())) || !made) {
    throw toolkit::RuntimeError(kCannotCreate, u"QorlTST", u"ActiveX component can't create object");
  }
  return made;
}

}  // namespace qorltst::automation
