#include "orloclock.h"

#include "detachedcommand.h"
#include "services/boardutils.h"
#include "standardstreams.h"

#include <cerrno>
#include <cstring>
#include <iterator>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr const char SlotTool[] = "/usr/bin/peldasetclk";
constexpr const char UnitTool[] = "/usr/local/arvo/bin/orlo-clocksrc";
constexpr const char* SlotLabels[] = {"LA", "RA", "LB", "RB", "LC", "RC"};

enum ClockCode { Gps1pps = 2, Atomic1pps = 3, Atomic10MHz = 4 };

const char* slotCode(int source)
{
    return source == Atomic1pps ? "2" : source == Atomic10MHz ? "1" : "3";
}

/** The tool knows no 10 MHz: that code is one of the others. */
const char* unitSource(int source)
{
    return source == Gps1pps ? "gps" : source == Atomic1pps ? "atomic" : "tcxo";
}

// From here on only async-signal-safe calls.

void say(const char* text)
{
    // A log that nobody takes is no reason to leave the clock alone.
    if (::write(STDOUT_FILENO, text, std::strlen(text)) < 0) { }
}

/** Becomes the tool; returns when that fails. */
void become(const char* program, const char* const (&words)[3])
{
    // One write, so that the lines of several slots stay whole.
    char line[128];
    std::size_t length = 0;
    for (const char* part :
        {"execute clock set command: ", words[0], " ", words[1], " ", words[2], " \n", ""}) {
        const std::size_t size = std::strlen(part) + 1; // all are short
        std::memcpy(line + length, part, size);
        length += size - 1;
    }
    say(line);
    char* const arguments[]
        = {const_cast<char*>(words[0]), const_cast<char*>(words[1]), const_cast<char*>(words[2]), nullptr};
    ::execve(program, arguments, CDetachedCommand::environment());
}

void waitFor(pid_t child)
{
    while (child > 0 && ::waitpid(child, nullptr, 0) < 0 && errno == EINTR) { }
}

void setSlot(int slot, int source)
{
    const pid_t tool = ::_Fork();
    if (tool == 0) {
        become(SlotTool, {"peldasetclk", SlotLabels[slot], slotCode(source)});
        ::_exit(1);
    }
    waitFor(tool);
}

[[noreturn]] void setSlots(const stOrlo_ClockSrc_cmd& cmd)
{
    for (int slot = 0; slot < int(std::size(SlotLabels)); ++slot) {
        if (cmd.board_index < 0 || cmd.board_index == slot)
            setSlot(slot, cmd.clock_source[slot]);
    }
    ::_exit(0);
}

[[noreturn]] void setUnit(const stOrlo_ClockSrc_cmd& cmd)
{
    become(UnitTool, {"orlo-clocksrc", "--set", unitSource(cmd.clock_source[0])});
    ::_exit(0);
}

void setApart(const void* data)
{
    say("child thread ");
    stOrlo_ClockSrc_ret ret;
    orlo_modconf_clocksrc(-1, static_cast<const stOrlo_ClockSrc_cmd*>(data), &ret);
}

} // namespace

int orlo_modconf_clocksrc(int, const stOrlo_ClockSrc_cmd* cmd, stOrlo_ClockSrc_ret* ret)
{
    if (ret)
        *ret = {};
    const bool hasSlots = miscutils::CBoardUtils::IsChassisRevE();
    const pid_t child = ::_Fork();
    if (child < 0)
        return 0;
    if (child == 0)
        hasSlots ? setSlots(*cmd) : setUnit(*cmd);
    waitFor(child);
    if (ret) {
        ret->board_index = hasSlots ? cmd->board_index : -1;
        for (int slot = 0; slot < int(std::size(SlotLabels)); ++slot)
            ret->clock_source[slot] = cmd->clock_source[hasSlots ? slot : 0];
    }
    return 0;
}

void setOrloclock(stOrlo_ClockSrc_cmd* cmd)
{
    CDetachedCommand::runApart(&setApart, cmd); // what is missing is told there, and the user goes on
    standardstreams::write(STDOUT_FILENO, QByteArrayLiteral("father thread "));
}
