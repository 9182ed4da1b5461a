#include "globalsettingutils.h"

#include "files/globalsetting.h"

#include <cstring>

#include <sys/ipc.h>
#include <sys/shm.h>

namespace miscutils {

StorageSetting CGlobalSettingUtils::GetStorageSetting()
{
    StorageSetting setting;
    const key_t key = ::ftok(GlobalSettingKeyFile, GlobalSettingProject);
    // A smaller segment is refused here.
    const int id = key > 0 ? ::shmget(key, sizeof(stArvo_global_setting), 0) : -1;
    if (id < 0)
        return setting;
    void* attached = ::shmat(id, nullptr, SHM_RDONLY);
    if (attached == reinterpret_cast<void*>(-1))
        return setting;
    const auto& block = *static_cast<const stArvo_global_setting*>(attached);
    setting.isKnown = true;
    setting.fileNamePrefix = QString::fromUtf8(
        block.fname_prefix, int(::strnlen(block.fname_prefix, sizeof block.fname_prefix)));
    setting.profileDeleting = block.profdel_type;
    setting.profileSaving = block.profsave_type;
    setting.resultSaving = block.rsltsave_type;
    setting.advancedSaving = block.advanced_save;
    ::shmdt(attached);
    return setting;
}

} // namespace miscutils
