#include "globalsettingutils.h"

#include <cstdint>
#include <cstring>

#include <sys/ipc.h>
#include <sys/shm.h>

namespace {

constexpr const char KEY_FILE[] = "/usr/local/arvo/share/res/keys/global";
constexpr int KEY_PROJECT = 86;
constexpr size_t BLOCK_BYTES = 1024;

// Byte offsets in the block.
constexpr size_t FNAME_PREFIX = 16;
constexpr size_t FNAME_PREFIX_BYTES = 64;
constexpr size_t PROFDEL_TYPE = 80;
constexpr size_t PROFSAVE_TYPE = 84;
constexpr size_t RSLTSAVE_TYPE = 88;
constexpr size_t ADVANCED_SAVE = 92;

int integerAt(const char* block, size_t offset)
{
    std::int32_t value = 0;
    std::memcpy(&value, block + offset, sizeof value);
    return value;
}

} // namespace

namespace miscutils {

StorageSetting CGlobalSettingUtils::GetStorageSetting()
{
    StorageSetting setting;
    const key_t key = ::ftok(KEY_FILE, KEY_PROJECT);
    const int id = key > 0 ? ::shmget(key, BLOCK_BYTES, 0) : -1; // a smaller segment is refused here
    if (id < 0)
        return setting;
    void* attached = ::shmat(id, nullptr, SHM_RDONLY);
    if (attached == reinterpret_cast<void*>(-1))
        return setting;
    const auto* block = static_cast<const char*>(attached);
    setting.isKnown = true;
    setting.fileNamePrefix
        = QString::fromUtf8(block + FNAME_PREFIX, int(::strnlen(block + FNAME_PREFIX, FNAME_PREFIX_BYTES)));
    setting.profileDeleting = integerAt(block, PROFDEL_TYPE);
    setting.profileSaving = integerAt(block, PROFSAVE_TYPE);
    setting.resultSaving = integerAt(block, RSLTSAVE_TYPE);
    setting.advancedSaving = integerAt(block, ADVANCED_SAVE);
    ::shmdt(attached);
    return setting;
}

} // namespace miscutils
