/*
 * The platform daemon of a development machine: answers the services of org.arvo.Platform from the files that
 * simctl writes below /tmp/var/sim.
 *
 *   platformd [--ready-fd N]     writes a line to descriptor N once the name is owned
 */
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <memory>
#include <string>
#include <systemd/sd-bus.h>
#include <unistd.h>

namespace {

constexpr char LanguageFile[] = "/tmp/var/sim/language";
constexpr char FailureFile[] = "/tmp/var/sim/failure";

struct BusCloser
{
    void operator()(sd_bus* bus) const { sd_bus_flush_close_unref(bus); }
};

int switchLanguage(sd_bus_message* request, void*, sd_bus_error* error)
{
    int language = 0;
    const int read = sd_bus_message_read(request, "i", &language);
    if (read < 0)
        return read;
    std::ofstream file(LanguageFile, std::ios::trunc);
    file << language << std::endl;
    if (!file)
        return sd_bus_error_setf(error, SD_BUS_ERROR_FAILED, "%s can not be written", LanguageFile);
    return sd_bus_reply_method_return(request, "");
}

int queryLatestSysFailure(sd_bus_message* request, void*, sd_bus_error*)
{
    std::string text;
    std::ifstream file(FailureFile);
    std::getline(file, text); // no file: nothing has failed, an empty text
    return sd_bus_reply_method_return(request, "s", text.c_str());
}

const sd_bus_vtable LanguageInterface[] = {
    SD_BUS_VTABLE_START(0),
    SD_BUS_METHOD("SwitchLanguage", "i", "", switchLanguage, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_VTABLE_END,
};
const sd_bus_vtable FailureInterface[] = {
    SD_BUS_VTABLE_START(0),
    SD_BUS_METHOD("QueryLatestSysFailure", "", "s", queryLatestSysFailure, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_VTABLE_END,
};

int failed(const char* what, int error)
{
    std::fprintf(stderr, "platformd: %s: %s\n", what, std::strerror(-error));
    return EXIT_FAILURE;
}

} // namespace

int main(int argc, char** argv)
{
    int readyDescriptor = -1;
    if (argc == 3 && std::strcmp(argv[1], "--ready-fd") == 0)
        readyDescriptor = std::atoi(argv[2]);
    else if (argc != 1) {
        std::fprintf(stderr, "usage: platformd [--ready-fd N]\n");
        return 2;
    }

    sd_bus* opened = nullptr;
    int result = sd_bus_open_system(&opened);
    if (result < 0)
        return failed("no system bus", result);
    const std::unique_ptr<sd_bus, BusCloser> bus(opened);
    constexpr char Object[] = "/org/arvo/Platform";
    if ((result = sd_bus_add_object_vtable(
             bus.get(), nullptr, Object, "org.arvo.Platform.Language", LanguageInterface, nullptr))
            < 0
        || (result = sd_bus_add_object_vtable(
                bus.get(), nullptr, Object, "org.arvo.Platform.SysFailure", FailureInterface, nullptr))
            < 0
        || (result = sd_bus_request_name(bus.get(), "org.arvo.Platform", 0)) < 0)
        return failed("cannot offer the services", result);
    if (readyDescriptor >= 0) {
        if (write(readyDescriptor, "up\n", 3) != 3)
            return failed("nobody waits for the start", -EPIPE);
        close(readyDescriptor);
    }

    for (;;) {
        result = sd_bus_process(bus.get(), nullptr);
        if (result == 0)
            result = sd_bus_wait(bus.get(), UINT64_MAX);
        if (result < 0 && result != -EINTR)
            return failed("lost the bus", result);
    }
}
