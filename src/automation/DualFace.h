// The automation face of one of our objects: its dual interface, and the two small interfaces beside it.
#pragma once

#include "automation/Com.h"
#include "automation/DualTable.h"
#include "frame/Object.h"

namespace qorltst::automation {

/// How an object of ours, or a foreign one behind an `Object`, is handed to callers.
class AutomationFace : public ObjectFace {
 public:
  /// Not counted; it lives as long as the object.
  [[nodiscard]] virtual IDispatch* Dispatch() noexcept = 0;
};

/// Tells callers that a failed call of the dual interface leaves error information.
class ErrorInfoFace final : public ISupportErrorInfo {
 public:
  explicit ErrorInfoFace(Dual& dual) noexcept : dual_(dual) {}
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID interfaceId, void** out) noexcept override;
  ULONG STDMETHODCALLTYPE AddRef() noexcept override;
  ULONG STDMETHODCALLTYPE Release() noexcept override;
  HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID interfaceId) noexcept override;

 private:
  Dual& dual_;
};

/// Tells callers the class of the object.
class ClassInfoFace final : public IProvideClassInfo {
 public:
  explicit ClassInfoFace(Dual& dual) noexcept : dual_(dual) {}
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID interfaceId, void** out) noexcept override;
  ULONG STDMETHODCALLTYPE AddRef() noexcept override;
  ULONG STDMETHODCALLTYPE Release() noexcept override;
  HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** out) noexcept override;

 private:
  Dual& dual_;
};

/// References to any of its interfaces count for the object, which owns its face.
class DualFace final : public AutomationFace {
 public:
  explicit DualFace(Object& object);

  [[nodiscard]] IDispatch* Dispatch() noexcept override;

  /// The interface with this id, not counted, or nothing.
  [[nodiscard]] void* Find(REFIID interfaceId) noexcept;

 private:
  Dual dual_;
  ErrorInfoFace errorInfo_;
  ClassInfoFace classInfo_;
};

/// The face of the object behind an interface pointer of ours.
[[nodiscard]] DualFace& FaceOf(const Dual& dual) noexcept;

/// The object's dispatch interface as a caller gets it: counted. Makes the face where the object has none yet.
[[nodiscard]] IDispatch* HandOut(Object& object);

/// The object of this module behind an interface, or nothing for a foreign one.
[[nodiscard]] Ref<Object> OwnObject(IUnknown* candidate) noexcept;

}  // namespace qorltst::automation
