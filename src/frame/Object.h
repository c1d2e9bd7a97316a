// The base of every public object: one count, one description, at most one automation face.
#pragma once

#include <cstdint>
#include <memory>

#include "frame/Value.h"
#include "toolkit/RefCounted.h"

namespace qorltst {

struct ClassDescription;

/// What an object looks like to automation. Made when a caller first sees the object and kept until its end,
/// so that identity holds; a native program never makes one.
class ObjectFace {
 public:
  ObjectFace() = default;
  ObjectFace(const ObjectFace&) = delete;
  ObjectFace& operator=(const ObjectFace&) = delete;
  virtual ~ObjectFace() = default;
};

/// An object that callers can see. Used on one thread at a time, as automation apartments have it.
class Object : public toolkit::RefCounted {
 public:
  Object() noexcept;

  /// The public face as data: one table row for each member.
  [[nodiscard]] virtual const ClassDescription& Description() const noexcept = 0;

  /// The automation face, or nothing where no caller has seen this object yet.
  [[nodiscard]] ObjectFace* Face() const noexcept { return face_.get(); }

  /// Gives the object its face, for the rest of its life. Only once.
  void SetFace(std::unique_ptr<ObjectFace> face) noexcept { face_ = std::move(face); }

  /// How many objects live in this process now.
  [[nodiscard]] static std::int32_t Living() noexcept;

 protected:
  ~Object() override;

 private:
  std::unique_ptr<ObjectFace> face_;
};

/// A position in a sequence of objects; scripts enumerate collections and nodes through it.
class Cursor : public toolkit::RefCounted {
 public:
  /// The object at the position, which moves on; nothing after the last.
  virtual Ref<Object> Next() = 0;

  /// Goes back to the first object.
  virtual void Reset() = 0;

  /// Another cursor at the same position.
  [[nodiscard]] virtual Ref<Cursor> Clone() const = 0;
};

}  // namespace qorltst
