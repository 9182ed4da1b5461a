#include "buslink.h"

#include <QDebug>
#include <chrono>
#include <csignal>
#include <cstring>
#include <sys/socket.h>
#include <system_error>
#include <systemd/sd-bus.h>
#include <utility>

namespace serv {

namespace {

constexpr char Service[] = "org.arvo.Platform";
constexpr char Object[] = "/org/arvo/Platform";

// Nobody waits that long: an answer of any age ends the time in which the platform counts as away.
constexpr uint64_t Forever = UINT64_MAX;

} // namespace

/** One call: made by the caller, carried out by the thread, shared until both have let go of it. */
struct CBusLink::Call
{
    std::string interface;
    std::string method;
    std::optional<int> argument;
    bool wantsText = false;

    bool done = false; ///< the fields below hold
    bool ok = false;
    QString text;
};

/** A connection to the bus. Its calls block, until they are answered or the connection ends. */
class CBusLink::Bus
{
public:
    ~Bus() { sd_bus_close_unref(m_bus); }
    Bus() = default;
    Bus(const Bus&) = delete;
    Bus& operator=(const Bus&) = delete;

    /** Takes in what has come since the last call. @return false when the connection has ended meanwhile */
    bool isUsable()
    {
        int result = 0;
        while (m_bus && (result = sd_bus_process(m_bus, nullptr)) > 0) { }
        return m_bus && result >= 0 && sd_bus_is_open(m_bus) > 0;
    }

    void close() { m_bus = sd_bus_close_unref(m_bus); }

    /** Connects anew, without waiting for the other side. @return the socket, or a negative error */
    int open(const std::string& address)
    {
        int result = 0;
        if ((result = sd_bus_new(&m_bus)) < 0 || (result = sd_bus_set_address(m_bus, address.c_str())) < 0
            || (result = sd_bus_set_bus_client(m_bus, 1)) < 0 || (result = sd_bus_start(m_bus)) < 0)
            return result;
        return sd_bus_get_fd(m_bus);
    }

    bool ask(const Call& call, QString& text)
    {
        sd_bus_message* message = nullptr;
        sd_bus_message* reply = nullptr;
        sd_bus_error error = SD_BUS_ERROR_NULL;
        const char* answer = "";
        int result = sd_bus_message_new_method_call(
            m_bus, &message, Service, Object, call.interface.c_str(), call.method.c_str());
        if (result >= 0 && call.argument)
            result = sd_bus_message_append(message, "i", *call.argument);
        if (result >= 0)
            result = sd_bus_message_set_auto_start(message, 0);
        if (result >= 0)
            result = sd_bus_call(m_bus, message, Forever, &error, &reply);
        if (result >= 0 && call.wantsText)
            result = sd_bus_message_read(reply, "s", &answer);
        if (result >= 0)
            text = QString::fromUtf8(answer);
        else
            qWarning("Platform service %s: %s", call.method.c_str(),
                error.message ? error.message : strerror(-result));
        sd_bus_error_free(&error);
        sd_bus_message_unref(reply);
        sd_bus_message_unref(message);
        return result >= 0;
    }

private:
    sd_bus* m_bus = nullptr;
};

CBusLink& CBusLink::systemBus()
{
    static CBusLink link("unix:path=/run/dbus/system_bus_socket");
    return link;
}

CBusLink::CBusLink(std::string address)
    : m_address(std::move(address))
{ }

CBusLink::~CBusLink()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_stop = true;
        if (m_socket >= 0)
            shutdown(m_socket, SHUT_RDWR); // ends the call in which the thread may wait
    }
    m_asked.notify_all();
    if (m_thread.joinable())
        m_thread.join();
}

bool CBusLink::start()
{
    if (m_thread.joinable())
        return true;
    // The process's signal handlers belong to the threads that expect them.
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
    try {
        m_thread = std::thread([this] { work(); });
    } catch (const std::system_error& error) { // no room for one more thread; the next call tries again
        qWarning("Platform bus: no thread - %s", error.what());
    }
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
    return m_thread.joinable();
}

void CBusLink::work()
{
    Bus bus;
    std::unique_lock<std::mutex> lock(m_mutex);
    for (;;) {
        m_asked.wait(lock, [this] { return m_stop || !m_queue.empty(); });
        if (m_stop)
            break;
        const std::shared_ptr<Call> call = m_queue.front();
        m_queue.pop_front();
        lock.unlock();
        QString text;
        const bool ok = connect(bus) && bus.ask(*call, text);
        lock.lock();
        call->done = true;
        call->ok = ok;
        call->text = text;
        m_away = false; // word of any kind ends that time
        m_answered.notify_all();
    }
    m_socket = -1;
}

bool CBusLink::connect(Bus& bus)
{
    if (bus.isUsable())
        return true;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_socket = -1; // its number may be another file's from now on
    }
    bus.close();
    const int socket = bus.open(m_address);
    if (socket < 0) {
        qWarning("Platform bus: %s", strerror(-socket));
        bus.close();
        return false;
    }
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_socket = socket;
    return !m_stop; // the destructor could not end a call on this socket
}

bool CBusLink::call(const char* interface, const char* method, std::optional<int> argument, QString* text)
{
    const auto call = std::make_shared<Call>();
    call->interface = interface;
    call->method = method;
    call->argument = argument;
    call->wantsText = text != nullptr;

    std::unique_lock<std::mutex> lock(m_mutex);
    if (m_away || !start())
        return false;
    m_queue.push_back(call);
    m_asked.notify_all();
    const auto limit = std::chrono::milliseconds(AnswerLimit);
    if (!m_answered.wait_for(lock, limit, [&call] { return call->done; })) {
        qWarning("Platform service %s: no answer in %d ms", method, AnswerLimit);
        m_away = true;
        return false;
    }
    if (call->ok && text)
        *text = call->text;
    return call->ok;
}

bool CBusLink::isAway() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_away;
}

} // namespace serv
