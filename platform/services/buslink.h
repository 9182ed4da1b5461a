#pragma once

#include <QString>
#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

namespace serv {

/**
 * This process's link to the platform's services on the system bus.
 *
 * A call waits at most AnswerLimit for its answer. When that time passes, the platform counts as away and
 * further calls fail at once, without waiting, until the call has ended: by its late answer (which is
 * dropped), by the bus's word that the service has ended, or with the connection, which the library gives up
 * when a new bus keeps silent. So a service that hangs costs
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
    class Bus;

    bool start();
    void work();
    bool connect(Bus& bus);

    const std::string m_address;
    mutable std::mutex m_mutex; // for the next four
    std::deque<std::shared_ptr<Call>> m_queue;
    int m_socket = -1; // of the connection; closed by the thread only
    bool m_stop = false;
    bool m_away = false;
    std::condition_variable m_asked;
    std::condition_variable m_answered;
    std::thread m_thread;
};

} // namespace serv
