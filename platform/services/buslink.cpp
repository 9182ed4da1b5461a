#include "buslink.h"

#include <QDebug>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstring>
#include <deque>
#include <poll.h>
#include <sys/eventfd.h>
#include <system_error>
#include <systemd/sd-bus.h>
#include <unistd.h>
#include <utility>

namespace serv {

namespace {

constexpr char Service[] = "org.arvo.Platform";
constexpr char Object[] = "/org/arvo/Platform";

struct BusCloser
{
    void operator()(sd_bus* bus) const { sd_bus_close_unref(bus); }
};

// Nobody waits that long: an answer of any age ends the time in which the platform counts as away.
constexpr uint64_t Forever = UINT64_MAX;
// The library gives a silent bus up after 25 s or more; a connection that ends earlier was ended by the other
// side.
constexpr std::chrono::seconds ShortestGiveUp(10);

} // namespace

/** One call: made by the caller, carried out by the worker, shared until both have let go of it. */
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

/** The thread of a link and everything that only it touches. */
class CBusLink::Worker
{
public:
    explicit Worker(CBusLink& link)
        : m_link(link)
        , m_wakeup(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
    { }
    ~Worker()
    {
        if (m_wakeup >= 0)
            close(m_wakeup);
    }
    Worker(const Worker&) = delete;
    Worker& operator=(const Worker&) = delete;

    bool isValid() const { return m_wakeup >= 0; }

    // Called by other threads, with the link's mutex held.
    void enqueue(const std::shared_ptr<Call>& call)
    {
        m_queue.push_back(call);
        wake();
    }
    void stop()
    {
        m_stop = true;
        wake();
    }

    void run();

private:
    struct Pending
    {
        Worker* worker;
        std::shared_ptr<Call> call;
    };

    void wake()
    {
        const uint64_t one = 1;
        while (write(m_wakeup, &one, sizeof one) < 0 && errno == EINTR) { }
    }
    bool connect();
    void disconnect();
    void send(const std::shared_ptr<Call>& call);
    void processAll();
    void waitForWork() const;
    void settle(const std::shared_ptr<Call>& call, bool ok, const QString& text = QString());
    static int answered(sd_bus_message* reply, void* data, sd_bus_error*);

    CBusLink& m_link;
    const int m_wakeup;
    std::deque<std::shared_ptr<Call>> m_queue; // guarded by the link's mutex
    bool m_stop = false; // guarded by the link's mutex
    std::unique_ptr<sd_bus, BusCloser> m_bus;
    std::chrono::steady_clock::time_point m_connectedAt;
    std::deque<std::unique_ptr<Pending>> m_pending;
};

void CBusLink::Worker::run()
{
    for (;;) {
        std::deque<std::shared_ptr<Call>> calls;
        {
            const std::lock_guard<std::mutex> lock(m_link.m_mutex);
            if (m_stop)
                return;
            calls.swap(m_queue);
        }
        for (const std::shared_ptr<Call>& call : calls)
            send(call);
        processAll();
        waitForWork();
    }
}

bool CBusLink::Worker::connect()
{
    sd_bus* created = nullptr;
    int result = sd_bus_new(&created);
    if (result < 0)
        return false;
    m_bus.reset(created);
    m_connectedAt = std::chrono::steady_clock::now();
    // Starts without waiting: the handshake goes on in processAll(), and calls are queued behind it.
    if ((result = sd_bus_set_address(created, m_link.m_address.c_str())) < 0
        || (result = sd_bus_set_bus_client(created, 1)) < 0 || (result = sd_bus_start(created)) < 0) {
        qWarning("Platform bus: %s", strerror(-result));
        m_bus.reset();
    }
    return m_bus != nullptr;
}

void CBusLink::Worker::disconnect()
{
    bool away = false;
    {
        const std::lock_guard<std::mutex> lock(m_link.m_mutex);
        away = m_link.m_away;
    }
    m_bus.reset();
    std::deque<std::unique_ptr<Pending>> lost;
    lost.swap(m_pending);
    for (const std::unique_ptr<Pending>& pending : lost)
        settle(pending->call, false);

    // A bus that kept silent until the library gave up may keep silent again: the next caller is spared that
    // wait, and a call of our own finds out when it speaks.
    const bool gaveUp = std::chrono::steady_clock::now() - m_connectedAt > ShortestGiveUp;
    if (!away || !gaveUp || !connect())
        return;
    {
        const std::lock_guard<std::mutex> lock(m_link.m_mutex);
        m_link.m_away = true;
    }
    const auto probe = std::make_shared<Call>();
    probe->interface = "org.freedesktop.DBus.Peer";
    probe->method = "Ping";
    send(probe);
}

void CBusLink::Worker::send(const std::shared_ptr<Call>& call)
{
    if (!m_bus && !connect()) {
        settle(call, false);
        return;
    }
    m_pending.push_back(std::make_unique<Pending>(Pending{this, call}));
    sd_bus_message* message = nullptr;
    int result = sd_bus_message_new_method_call(
        m_bus.get(), &message, Service, Object, call->interface.c_str(), call->method.c_str());
    if (result >= 0 && call->argument)
        result = sd_bus_message_append(message, "i", *call->argument);
    if (result >= 0)
        result = sd_bus_message_set_auto_start(message, 0);
    if (result >= 0)
        result = sd_bus_call_async(m_bus.get(), nullptr, message, answered, m_pending.back().get(), Forever);
    sd_bus_message_unref(message);
    if (result < 0) {
        qWarning("Platform bus: %s", strerror(-result));
        disconnect();
    }
}

void CBusLink::Worker::processAll()
{
    int result = 1;
    while (m_bus && result > 0) {
        result = sd_bus_process(m_bus.get(), nullptr);
        if (result < 0 || !sd_bus_is_open(m_bus.get())) {
            qWarning("Platform bus: connection lost");
            disconnect();
        }
    }
}

void CBusLink::Worker::waitForWork() const
{
    pollfd watched[2] = {{m_wakeup, POLLIN, 0}, {-1, 0, 0}};
    timespec limit{};
    const timespec* wait = nullptr;
    if (m_bus) {
        const int events = sd_bus_get_events(m_bus.get());
        uint64_t due = UINT64_MAX;
        if (events < 0 || sd_bus_get_timeout(m_bus.get(), &due) < 0)
            return;
        watched[1] = {sd_bus_get_fd(m_bus.get()), static_cast<short>(events), 0};
        if (due != UINT64_MAX) {
            using namespace std::chrono;
            const auto now = duration_cast<microseconds>(steady_clock::now().time_since_epoch()).count();
            const uint64_t left = due > static_cast<uint64_t>(now) ? due - static_cast<uint64_t>(now) : 0;
            limit.tv_sec = static_cast<time_t>(left / 1000000);
            limit.tv_nsec = static_cast<long>(left % 1000000 * 1000);
            wait = &limit;
        }
    }
    if (ppoll(watched, 2, wait, nullptr) > 0 && (watched[0].revents & POLLIN) != 0) {
        uint64_t count = 0;
        while (read(m_wakeup, &count, sizeof count) < 0 && errno == EINTR) { }
    }
}

// Hands the result to whoever still waits for it. Word of any kind ends the time in which the platform is
// away.
void CBusLink::Worker::settle(const std::shared_ptr<Call>& call, bool ok, const QString& text)
{
    {
        const std::lock_guard<std::mutex> lock(m_link.m_mutex);
        call->done = true;
        call->ok = ok;
        call->text = text;
        m_link.m_away = false;
    }
    m_link.m_answered.notify_all();
}

int CBusLink::Worker::answered(sd_bus_message* reply, void* data, sd_bus_error*)
{
    Pending* const pending = static_cast<Pending*>(data);
    Worker* const worker = pending->worker;
    const std::shared_ptr<Call> call = pending->call;
    for (auto it = worker->m_pending.begin(); it != worker->m_pending.end(); ++it) {
        if (it->get() == pending) {
            worker->m_pending.erase(it);
            break;
        }
    }
    if (const sd_bus_error* const error = sd_bus_message_get_error(reply)) {
        qWarning(
            "Platform service %s: %s", call->method.c_str(), error->message ? error->message : error->name);
        worker->settle(call, false);
        return 0;
    }
    const char* text = "";
    if (call->wantsText && sd_bus_message_read(reply, "s", &text) < 0) {
        qWarning("Platform service %s: no text in the answer", call->method.c_str());
        worker->settle(call, false);
        return 0;
    }
    worker->settle(call, true, QString::fromUtf8(text));
    return 0;
}

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
    if (!m_thread.joinable())
        return;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_worker->stop();
    }
    m_thread.join();
}

bool CBusLink::start()
{
    if (m_worker)
        return true;
    auto worker = std::make_unique<Worker>(*this);
    if (!worker->isValid()) {
        qWarning("Platform bus: %s", strerror(errno));
        return false;
    }
    m_worker = std::move(worker);
    // The process's signal handlers belong to the threads that expect them.
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
    try {
        m_thread = std::thread([this] { m_worker->run(); });
    } catch (const std::system_error& error) { // no room for one more thread; the next call tries again
        qWarning("Platform bus: no thread - %s", error.what());
        m_worker.reset();
    }
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
    return m_worker != nullptr;
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
    m_worker->enqueue(call);
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
