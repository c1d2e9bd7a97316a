// The operating system's automation headers, in the order they want, and counted references to its interfaces.
#pragma once

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif

// windows.h stands first: the others do not include what they use.
// clang-format off
#include <windows.h>
#include <ocidl.h>
#include <oleauto.h>
#include <dispex.h>
// clang-format on

#include <bit>
#include <utility>

#include "automation/Guid.h"

// The system's interfaces have no virtual destructor, and may have none: their virtual tables are given. Counting
// ends the objects behind them.
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

namespace qorltst::automation {

/// The system's own type for an identifier.
[[nodiscard]] inline GUID SystemGuid(const Guid& guid) noexcept { return std::bit_cast<GUID>(guid); }

[[nodiscard]] inline Guid PortableGuid(const GUID& guid) noexcept { return std::bit_cast<Guid>(guid); }

/// A counted reference to an interface, or nothing.
template <class Interface>
class ComRef {
 public:
  ComRef() noexcept = default;
  ComRef(std::nullptr_t) noexcept {}  // NOLINT(google-explicit-constructor): nothing is a reference too
  explicit ComRef(Interface* object) noexcept : object_(object) {
    if (object_ != nullptr) {
      object_->AddRef();
    }
  }
  ComRef(const ComRef& other) noexcept : ComRef(other.object_) {}
  ComRef(ComRef&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  ~ComRef() { Drop(); }

  ComRef& operator=(ComRef other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }

  [[nodiscard]] Interface* Get() const noexcept { return object_; }
  Interface* operator->() const noexcept { return object_; }
  explicit operator bool() const noexcept { return object_ != nullptr; }

  /// Where a call stores a reference that it gives away. What was held before is released.
  [[nodiscard]] Interface** Receive() noexcept {
    Drop();
    return &object_;
  }

  /// The same for the calls that hand out any interface.
  [[nodiscard]] void** ReceiveAny() noexcept {
    Drop();
    // QueryInterface and its kin store an interface pointer through a pointer to void*.
    return reinterpret_cast<void**>(&object_);
  }

  /// Gives the reference away.
  [[nodiscard]] Interface* Detach() noexcept { return std::exchange(object_, nullptr); }

 private:
  void Drop() noexcept {
    if (Interface* const dropped = std::exchange(object_, nullptr)) {
      dropped->Release();
    }
  }

  Interface* object_ = nullptr;
};

/// Another interface of the object, or nothing.
template <class Wanted>
[[nodiscard]] ComRef<Wanted> Query(IUnknown* object) noexcept {
  ComRef<Wanted> found;
  if (object != nullptr && FAILED(object->QueryInterface(__uuidof(Wanted), found.ReceiveAny()))) {
    return nullptr;
  }
  return found;
}

}  // namespace qorltst::automation
