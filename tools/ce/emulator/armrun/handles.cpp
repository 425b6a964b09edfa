#include "handles.h"

#include <algorithm>

HandleTable handles;

namespace {
constexpr uint32_t kFirst = 0x100;
constexpr uint32_t kStep = 4;
} // namespace

size_t HandleTable::PlaceOf(uint32_t handle) {
    return handle < kFirst || handle % kStep != 0 ? SIZE_MAX : (handle - kFirst) / kStep;
}

uint32_t HandleTable::Add(std::shared_ptr<Object> object) {
    auto free = std::find(objects_.begin(), objects_.end(), nullptr);
    if (free == objects_.end()) free = objects_.emplace(objects_.end());
    *free = std::move(object);
    return kFirst + kStep * static_cast<uint32_t>(free - objects_.begin());
}

Object* HandleTable::Find(uint32_t handle) const {
    const size_t place = PlaceOf(handle);
    return place < objects_.size() ? objects_[place].get() : nullptr;
}

bool HandleTable::Remove(uint32_t handle) {
    if (!Find(handle)) return false;
    objects_[PlaceOf(handle)].reset();
    return true;
}
