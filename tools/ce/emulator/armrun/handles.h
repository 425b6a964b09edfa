#pragma once

#include <cstdint>
#include <memory>
#include <vector>

enum class Kind { Key, File, Find, Event, Database, Graphic };

// What a handle of the program stands for; each kind is a structure with its own kKind.
struct Object {
    explicit Object(Kind ownKind) : kind(ownKind) {}
    virtual ~Object() = default;

    const Kind kind;
};

// Handles are numbers, and the lowest free one is given out next: so a test sees what stayed open.
class HandleTable {
  public:
    uint32_t Add(std::shared_ptr<Object> object);
    [[nodiscard]] Object* Find(uint32_t handle) const;
    bool Remove(uint32_t handle);

  private:
    [[nodiscard]] static size_t PlaceOf(uint32_t handle);

    std::vector<std::shared_ptr<Object>> objects_;
};

extern HandleTable handles;

// The handle's object, if it is of that kind.
template <class T>
T* Opened(uint32_t handle) {
    Object* object = handles.Find(handle);
    return object && object->kind == T::kKind ? static_cast<T*>(object) : nullptr;
}

constexpr uint32_t kInvalidHandle = 0xFFFFFFFF;

// The error numbers of the platform that the host leaves behind.
constexpr uint32_t kSuccess = 0, kFileNotFound = 2, kPathNotFound = 3, kAccessDenied = 5,
                   kInvalidHandleError = 6, kNoMoreFiles = 18, kSharingViolation = 32,
                   kFileExists = 80, kInvalidParameter = 87, kInsufficientBuffer = 122,
                   kInvalidName = 123, kDirectoryNotEmpty = 145, kAlreadyExists = 183,
                   kMoreData = 234, kNoMoreItems = 259, kKeyDeleted = 1018;

void LeaveError(uint32_t error);
// Leaves the error and gives what a failed call gives.
template <class T>
T Failed(uint32_t error, T result) {
    LeaveError(error);
    return result;
}
