// What a call across the edge costs: the same property of the same object by every road, objects, whole retrievals.
// The two libraries are taken from beside this program, without the registry.
#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include "automation/Com.h"
#include "automation/Identities.h"
#include "automation/Module.h"
#include "automation/Server.h"
#include "automation/Text.h"
#include "automation/Variant.h"

// The system's interface compiler writes this one.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wold-style-cast"
#pragma GCC diagnostic ignored "-Wredundant-decls"
#pragma GCC diagnostic ignored "-Wwrite-strings"
#pragma GCC diagnostic ignored "-Wextra-semi"
#pragma GCC diagnostic ignored "-Wmissing-declarations"
#include "client/QorlTST.h"
#pragma GCC diagnostic pop

namespace qorltst::automation {

/// The program serves nothing; the machinery that it borrows wants to know.
const Server& ThisServer() noexcept {
  static const Server server{ComponentLibrary(), nullptr};
  return server;
}

namespace {

std::u16string Beside(std::u16string_view file) {
  std::u16string path = ModulePath();
  path.resize(path.rfind(u'\\') + 1);
  return path.append(file);
}

/// A manifest beside the program stands for registration.
void ActivateLibraries() {
  const std::u16string path = Beside(u"qorl_automation_bench.manifest");
  const std::u16string directory = Beside(u"");
  std::ofstream(std::string(path.begin(), path.end()), std::ios::binary)
      << "<assembly xmlns=\"urn:schemas-microsoft-com:asm.v1\" manifestVersion=\"1.0\">\n"
         "<assemblyIdentity type=\"win32\" name=\"QorlBench\" version=\"1.0.0.0\"/>\n"
         "<file name=\"QorlTST.dll\"><comClass threadingModel=\"Apartment\" progid=\"QorlTST.TST\" clsid=\"{"
      << ToString(ComponentLibrary().IdentityOf(u"TST")->classId)
      << "}\"/></file>\n<file name=\"QorlHostToolkit.dll\">"
         "<comClass threadingModel=\"Apartment\" progid=\"QorlHostToolkit.ParseNode\" "
         "clsid=\"{f2c1b7c6-1bf0-4cb3-8eb9-e8f9b32e235a}\"/>"
         "<comClass threadingModel=\"Apartment\" progid=\"QorlHostToolkit.HostLogger\" "
         "clsid=\"{f6768415-8214-4763-b5c5-e8313a3f6bdb}\"/>"
         "<comClass threadingModel=\"Apartment\" progid=\"QorlHostToolkit.RecordedSession\" "
         "clsid=\"{ba8a69eb-e8bc-4256-8a2d-924d1e535d4e}\"/>"
         "<comClass threadingModel=\"Apartment\" progid=\"QorlHostToolkit.LogReader\" "
         "clsid=\"{84f4d42c-5537-4f9d-a935-371b9966c9bd}\"/></file></assembly>\n";
  ACTCTXW description{};
  description.cbSize = sizeof description;
  description.dwFlags = ACTCTX_FLAG_ASSEMBLY_DIRECTORY_VALID;
  description.lpSource = SystemText(path);
  description.lpAssemblyDirectory = SystemText(directory);
  ULONG_PTR cookie = 0;
  ActivateActCtx(CreateActCtxW(&description), &cookie);
}

ComRef<IClassFactory> FactoryOf(const wchar_t* programId) {
  CLSID classId;
  ComRef<IClassFactory> factory;
  if (SUCCEEDED(CLSIDFromProgID(programId, &classId))) {
    CoGetClassObject(classId, CLSCTX_INPROC_SERVER, nullptr, IID_IClassFactory, factory.ReceiveAny());
  }
  return factory;
}

template <class Interface = IDispatch>
ComRef<Interface> Create(const ComRef<IClassFactory>& factory) {
  ComRef<Interface> made;
  if (factory) {
    factory->CreateInstance(nullptr, __uuidof(Interface), made.ReceiveAny());
  }
  return made;
}

double Seconds() {
  LARGE_INTEGER now;
  LARGE_INTEGER frequency;
  QueryPerformanceCounter(&now);
  QueryPerformanceFrequency(&frequency);
  return static_cast<double>(now.QuadPart) / static_cast<double>(frequency.QuadPart);
}

/// The median of seven runs, for one call.
void Report(const char* what, int calls, const std::function<bool()>& call) {
  std::array<double, 7> runs{};
  for (double& run : runs) {
    const double begin = Seconds();
    for (int i = 0; i < calls; ++i) {
      if (!call()) {
        std::printf("%-58s failed\n", what);
        return;
      }
    }
    run = (Seconds() - begin) / calls * 1e9;
  }
  std::ranges::sort(runs);
  std::printf("%-58s %12.0f ns   (%.0f to %.0f)\n", what, runs[3], runs.front(), runs.back());
}

DISPID IdOf(IDispatch* object, const wchar_t* name) {
  LPOLESTR wanted = const_cast<wchar_t*>(name);  // only read
  DISPID id = DISPID_UNKNOWN;
  object->GetIDsOfNames(GUID_NULL, &wanted, 1, LOCALE_USER_DEFAULT, &id);
  return id;
}

/// One property by every road.
void ReportProperty(_TST* tst, const char* type, const wchar_t* name, const std::function<bool()>& early) {
  const DISPID id = IdOf(tst, name);
  ComRef<ITypeInfo> info;
  tst->GetTypeInfo(0, LOCALE_USER_DEFAULT, info.Receive());
  const auto line = [type](const char* road) { return std::string(type) + " property, " + road; };
  Report(line("virtual table").c_str(), 200000, early);
  Report(line("Invoke").c_str(), 200000, [&] {
    Variant value;
    DISPPARAMS none{};
    return SUCCEEDED(tst->Invoke(id, GUID_NULL, 0, DISPATCH_PROPERTYGET, &none, &value.Get(), nullptr, nullptr));
  });
  Report(line("ITypeInfo::Invoke").c_str(), 50000, [&] {
    Variant value;
    DISPPARAMS none{};
    return SUCCEEDED(info->Invoke(tst, id, DISPATCH_PROPERTYGET, &none, &value.Get(), nullptr, nullptr));
  });
  Report(line("GetIDsOfNames").c_str(), 200000, [&] { return IdOf(tst, name) == id; });
}

bool CallByName(IDispatch* object, const wchar_t* name, std::u16string_view argument) {
  Variant text(argument);
  DISPPARAMS parameters{&text.Get(), nullptr, argument.empty() ? 0U : 1U, 0};
  return SUCCEEDED(
      object->Invoke(IdOf(object, name), GUID_NULL, 0, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr));
}

void ReportRetrieval(_TST* tst, const std::u16string& displays, std::u16string_view file) {
  const ComRef<IDispatch> session = Create(FactoryOf(L"QorlHostToolkit.RecordedSession"));
  const ComRef<IDispatch> log = Create(FactoryOf(L"QorlHostToolkit.LogReader"));
  if (!session || !log || !CallByName(session.Get(), L"Load", displays + u"/" + std::u16string(file))) {
    std::printf("retrieval: no session\n");
    return;
  }
  const std::string what = "whole retrieval, " + std::string(file.begin(), file.end());
  Report(what.c_str(), 50, [&] {
    LONG code = -1;
    return SUCCEEDED(tst->RetrieveCurrentTst(session.Get(), &code)) && code == 0 && CallByName(log.Get(), L"Clear", {});
  });
}

void Run(const std::u16string& displays) {
  ActivateLibraries();
  const ComRef<IClassFactory> factory = FactoryOf(L"QorlTST.TST");
  const ComRef<_TST> tst = Create<_TST>(factory);
  if (!tst) {
    std::printf("the component cannot be created\n");
    return;
  }
  ReportProperty(tst.Get(), "32-bit", L"ClassDebugID", [&] {
    LONG value = 0;
    return SUCCEEDED(tst->get_ClassDebugID(&value));
  });
  ReportProperty(tst.Get(), "string", L"FareBaseLineText", [&] {
    BSTR value = nullptr;
    const bool done = SUCCEEDED(tst->get_FareBaseLineText(&value));
    SysFreeString(value);
    return done;
  });
  Report("a TST with all its empty parts", 5000, [&] { return static_cast<bool>(Create(factory)); });
  Report("the same, its class factory looked up each time", 500,
         [] { return static_cast<bool>(Create(FactoryOf(L"QorlTST.TST"))); });
  ReportRetrieval(tst.Get(), displays, u"fares.txt");
  ReportRetrieval(tst.Get(), displays, u"long.txt");
}

}  // namespace
}  // namespace qorltst::automation

int main(int argumentCount, char** arguments) {
  if (FAILED(CoInitialize(nullptr))) {
    return 1;
  }
  const std::string displays = argumentCount > 1 ? arguments[1] : "examples/displays";
  qorltst::automation::Run({displays.begin(), displays.end()});
  CoUninitialize();
  return 0;
}
