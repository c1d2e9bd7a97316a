// Intrusive reference counting: the lifetime of every object that crosses a border of the component.
#pragma once

#include <atomic>
#include <cstdint>
#include <type_traits>
#include <utility>

namespace qorltst::toolkit {

/// Base of everything that is shared by counting. An object starts with no reference and ends with its last one.
/// It may also stand as a member or on the stack; then nobody may take a `Ref` to it.
class RefCounted {
 public:
  RefCounted() = default;
  RefCounted(const RefCounted&) = delete;
  RefCounted& operator=(const RefCounted&) = delete;

  void AddRef() const noexcept { count_.fetch_add(1, std::memory_order_relaxed); }

  void Release() const noexcept {
    if (count_.fetch_sub(1, std::memory_order_acq_rel) == 1) {
      delete this;
    }
  }

  /// How many references are held now; for reports and tests, never for decisions.
  [[nodiscard]] std::uint32_t References() const noexcept { return count_.load(std::memory_order_relaxed); }

 protected:
  virtual ~RefCounted() = default;

 private:
  mutable std::atomic<std::uint32_t> count_{0};
};

/// A counted reference to a `T`, or nothing.
template <class T>
class Ref {
 public:
  Ref() noexcept = default;
  Ref(std::nullptr_t) noexcept {}  // NOLINT(google-explicit-constructor): nothing is a reference too
  explicit Ref(T* object) noexcept : object_(object) { Hold(); }
  Ref(const Ref& other) noexcept : object_(other.object_) { Hold(); }
  Ref(Ref&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}

  /// Converts as pointers do.
  template <class U, class = std::enable_if_t<std::is_convertible_v<U*, T*>>>
  Ref(const Ref<U>& other) noexcept : object_(other.Get()) {  // NOLINT(google-explicit-constructor)
    Hold();
  }

  ~Ref() { Drop(); }

  Ref& operator=(Ref other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }

  [[nodiscard]] T* Get() const noexcept { return object_; }
  T* operator->() const noexcept { return object_; }
  T& operator*() const noexcept { return *object_; }
  explicit operator bool() const noexcept { return object_ != nullptr; }
  friend bool operator==(const Ref& left, const Ref& right) noexcept { return left.object_ == right.object_; }

 private:
  void Hold() const noexcept {
    if (object_ != nullptr) {
      object_->AddRef();
    }
  }
  void Drop() noexcept {
    if (object_ != nullptr) {
      object_->Release();
    }
  }

  T* object_ = nullptr;
};

/// A new `T` behind its first reference.
template <class T, class... Arguments>
[[nodiscard]] Ref<T> Make(Arguments&&... arguments) {
  return Ref<T>(new T(std::forward<Arguments>(arguments)...));
}

}  // namespace qorltst::toolkit
