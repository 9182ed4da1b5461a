// Owner of the global settings segment: makes it as the platform does at power-on, and shows what is in it.
//
// globalsegment create [SIZE]
//     makes the segment, SIZE bytes (1024 without one), with the magic mark and, if it is large enough, the
//     settings that were kept, or those of a fresh unit
// globalsegment keep
//     keeps the settings in a file from now on: writes it, whole or not at all, when one has changed
// globalsegment show
//     prints the settings in it, one "name value" a line
// globalsegment remove
//     gives the segment back, where no namespace of its own does so
#include "lastconfiguration.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <sys/ipc.h>
#include <sys/shm.h>
#include <thread>

namespace {

constexpr char KeyFile[] = "/usr/local/arvo/share/res/keys/global";
constexpr int ProjectId = 86;
constexpr std::uint32_t MagicMark = 0x4F565241; // "ARVO"

constexpr char KeptDirectory[] = "/home/arvo/arvo-prof/arvoglobal-setting";
constexpr char KeptFile[] = "/home/arvo/arvo-prof/arvoglobal-setting/Last configuration";
constexpr int KeptLimit = 1024 * 1024; // bytes; a longer file is none of ours
constexpr std::chrono::milliseconds LookPause(100);
constexpr std::chrono::milliseconds RetryPause(1000);

int failed(const char* what)
{
    std::fprintf(stderr, "globalsegment: %s: %s\n", what, std::strerror(errno));
    return 1;
}

void fill(char* block)
{
    fillFactory(block);
    QFile file(QString::fromLatin1(KeptFile));
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly))
        return; // a fresh unit
    if (file.size() > KeptLimit || !readConfiguration(file.read(KeptLimit), block))
        std::fprintf(stderr, "globalsegment: %s can not be read\n", KeptFile);
}

bool write(const QByteArray& content)
{
    QDir().mkpath(QString::fromLatin1(KeptDirectory));
    QSaveFile file(QString::fromLatin1(KeptFile));
    return file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write(content) == content.size()
        && file.commit();
}

int keep(key_t key)
{
    const void* const attached = shmat(shmget(key, BlockSize, 0), nullptr, SHM_RDONLY);
    if (attached == reinterpret_cast<void*>(-1))
        return failed("no segment to keep");
    const char* const block = static_cast<const char*>(attached);
    // Nobody tells of a change: other processes write plain memory.
    QByteArray kept = writeConfiguration(block);
    for (bool isFailing = false;; std::this_thread::sleep_for(isFailing ? RetryPause : LookPause)) {
        const QByteArray content = writeConfiguration(block);
        if (content == kept)
            continue;
        const bool isWritten = write(content);
        if (isWritten)
            kept = content;
        else if (!isFailing)
            std::fprintf(stderr, "globalsegment: %s can not be written\n", KeptFile);
        isFailing = !isWritten;
    }
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
    if (size >= BlockSize)
        fill(static_cast<char*>(block));
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
        std::printf("%s %.*s\n", PrefixName, static_cast<int>(PrefixSize), block + PrefixOffset);
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    const key_t key = ftok(KeyFile, ProjectId);
    if (key == -1)
        return failed(KeyFile);
    if (argc >= 2 && std::strcmp(argv[1], "create") == 0) {
        const unsigned long size = argc > 2 ? std::strtoul(argv[2], nullptr, 10) : BlockSize;
        if (size == 0) {
            std::fprintf(stderr, "globalsegment: %s is no size\n", argv[2]);
            return 2;
        }
        return create(key, size);
    }
    if (argc == 2 && std::strcmp(argv[1], "show") == 0)
        return show(key);
    if (argc == 2 && std::strcmp(argv[1], "keep") == 0)
        return keep(key);
    if (argc == 2 && std::strcmp(argv[1], "remove") == 0)
        return remove(key);
    std::fprintf(stderr, "usage: globalsegment create [SIZE] | keep | show | remove\n");
    return 2;
}
