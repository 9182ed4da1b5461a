#pragma once

#include <QString>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

struct sd_bus;

namespace serv {

/**
 * This process's link to the platform's services on the system bus.
 *
 * A call waits at most AnswerLimit for its answer. When that time passes, the platform counts as away and
 * further calls fail at once, without waiting, until it is heard of again: the late answer itself (which is
 * dropped), the bus's word that the service has ended, or the bus coming up. So a service that hangs costs
 * AnswerLimit once, not once a call. A bus or a service that does not run is told apart at once and costs
 * nothing.
 *
 * The thread that talks to the bus starts with the first call and takes no signals; a link that is never used
 * costs nothing. A call for which it cannot be started fails, and the next one tries again. Destruction ends
 * it at once, whatever the bus does.
 *
 * Any thread may call.
 */
class CBusLink
{
public:
    /** Longest wait of a caller, in milliseconds. */
    static constexpr int AnswerLimit = 300;

    /** The link of this process to the system bus. */
    static CBusLink& systemBus();

    /** @param address bus address, e.g. "unix:path=/run/dbus/system_bus_socket" */
    explicit CBusLink(std::string address);
    ~CBusLink();
    CBusLink(const CBusLink&) = delete;
    CBusLink& operator=(const CBusLink&) = delete;

    /**
     * Calls a method of the platform object.
     * @param interface full interface name, e.g. "org.arvo.Platform.Language"
     * @param method the method; it takes one integer when `argument` is given, else nothing
     * @param[out] text when not null, the text that the method returns; untouched without an answer
     * @return false when there was no answer in time or the service reported an error (logged)
     */
    bool call(const char* interface, const char* method, std::optional<int> argument, QString* text);

    /** True while the platform counts as away, that is while calls fail without waiting. */
    bool isAway() const;

private:
    struct Call;
    class Worker;

    bool start();

    const std::string m_address;
    mutable std::mutex m_mutex;
    std::condition_variable m_answered;
    std::unique_ptr<Worker> m_worker;
    std::thread m_thread;
    bool m_away = false;
};

} // namespace serv
