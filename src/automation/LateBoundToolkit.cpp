// The registered toolkit. See LateBoundToolkit.h.
#include "automation/LateBoundToolkit.h"

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
