// Owner of the global settings segment: makes it as the platform does at power-on, and shows what is in it.
//
// globalsegment create [SIZE]
//     makes the segment, SIZE bytes (1024 without one), all zero but for the magic mark
// globalsegment show
//     prints the settings in it, one "name value" a line
// globalsegment remove
//     gives the segment back, where no namespace of its own does so
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <sys/ipc.h>
#include <sys/shm.h>

namespace {

constexpr char KeyFile[] = "/usr/local/arvo/share/res/keys/global";
constexpr int ProjectId = 86;
constexpr std::size_t SegmentSize = 1024;
constexpr std::uint32_t MagicMark = 0x4F565241; // "ARVO"

struct Field
{
    const char* name;
    std::size_t offset;
};

constexpr Field Fields[] = {
    {"unittype", 4},
    {"audible_alarm", 8},
    {"show_password", 12},
    {"profdel_type", 80},
    {"profsave_type", 84},
    {"rsltsave_type", 88},
    {"advanced_save", 92},
    {"bl_off_battery_on", 96},
    {"bl_off_battery_time", 100},
    {"bl_off_AC_on", 104},
    {"bl_off_AC_time", 108},
    {"br_level_battery", 112},
    {"br_level_AC", 116},
    {"save_screen_enable", 120},
    {"save_screen_compress", 124},
    {"save_screen_maxnum", 132},
    {"ui_style", 216},
    {"initdef_appindex", 512},
    {"manport_bootconnect", 516},
    {"clock_source_0", 520},
    {"clock_source_1", 524},
    {"clock_source_2", 528},
    {"clock_source_3", 532},
    {"clock_source_4", 536},
    {"clock_source_5", 540},
};
constexpr std::size_t PrefixOffset = 16;
constexpr std::size_t PrefixSize = 64;

int failed(const char* what)
{
    std::fprintf(stderr, "globalsegment: %s: %s\n", what, std::strerror(errno));
    return 1;
}

int create(key_t key, std::size_t size)
{
    int id = shmget(key, size, IPC_CREAT | 0666);
    if (id == 0) {
        // The first identifier of a fresh namespace, which the shell takes for none. The next one is another.
        shmctl(id, IPC_RMID, nullptr);
        id = shmget(key, size, IPC_CREAT | 0666);
    }
    if (id < 0)
        return failed("cannot make the segment");
    void* const block = shmat(id, nullptr, 0);
    if (block == reinterpret_cast<void*>(-1))
        return failed("cannot attach the segment");
    if (size >= sizeof MagicMark)
        std::memcpy(block, &MagicMark, sizeof MagicMark);
    shmdt(block);
    return 0;
}

int remove(key_t key)
{
    const int id = shmget(key, 0, 0);
    return id < 0 || shmctl(id, IPC_RMID, nullptr) == 0 ? 0 : failed("cannot remove the segment");
}

int show(key_t key)
{
    const int id = shmget(key, 0, 0);
    if (id < 0)
        return failed("no segment");
    shmid_ds state;
    if (shmctl(id, IPC_STAT, &state) != 0)
        return failed("cannot ask for the segment's size");
    const void* const attached = shmat(id, nullptr, SHM_RDONLY);
    if (attached == reinterpret_cast<void*>(-1))
        return failed("cannot attach the segment");
    const char* const block = static_cast<const char*>(attached);
    std::printf("size %zu\n", state.shm_segsz);
    for (const Field& field : Fields) {
        std::int32_t value = 0;
        if (field.offset + sizeof value > state.shm_segsz)
            break;
        std::memcpy(&value, block + field.offset, sizeof value);
        std::printf("%s %d\n", field.name, value);
    }
    if (PrefixOffset + PrefixSize <= state.shm_segsz)
        std::printf("fname_prefix %.*s\n", static_cast<int>(PrefixSize), block + PrefixOffset);
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    const key_t key = ftok(KeyFile, ProjectId);
    if (key == -1)
        return failed(KeyFile);
    if (argc >= 2 && std::strcmp(argv[1], "create") == 0) {
        const unsigned long size = argc > 2 ? std::strtoul(argv[2], nullptr, 10) : SegmentSize;
        if (size == 0) {
            std::fprintf(stderr, "globalsegment: %s is no size\n", argv[2]);
            return 2;
        }
        return create(key, size);
    }
    if (argc == 2 && std::strcmp(argv[1], "show") == 0)
        return show(key);
    if (argc == 2 && std::strcmp(argv[1], "remove") == 0)
        return remove(key);
    std::fprintf(stderr, "usage: globalsegment create [SIZE] | show | remove\n");
    return 2;
}
