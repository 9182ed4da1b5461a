#include "shellservice.h"

#include "sigtransfer.h"
#include "utilityid.h"

#include <QDebug>
#include <QSocketNotifier>
#include <QTimer>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <poll.h>
#include <string>
#include <systemd/sd-bus.h>

namespace {

constexpr char UnknownPage[] = "org.zentra.Shell.Error.UnknownPage";

struct Page
{
    const char* name;
    void (*ask)(CSigTransfer& relay);
};

constexpr Page Pages[] = {
    {"power", [](CSigTransfer& relay) { emit relay.queryPowerInfo(); }},
    {"storage", [](CSigTransfer& relay) { emit relay.queryStorageInfo(); }},
    {"help", [](CSigTransfer& relay) { emit relay.currentUtilChanged(UTILITY_ID_HELP); }},
    {"disk", [](CSigTransfer& relay) { emit relay.currentUtilChanged(UTILITY_ID_DISK_MANAGE); }},
};

std::string pageNames()
{
    std::string names;
    for (const Page& page : Pages)
        names.append(names.empty() ? "" : ", ").append(page.name);
    return names;
}

/** Milliseconds from now until a time of the library, which counts microseconds of the monotonic clock. */
int millisecondsUntil(uint64_t due)
{
    using namespace std::chrono;
    const auto now = uint64_t(duration_cast<microseconds>(steady_clock::now().time_since_epoch()).count());
    constexpr uint64_t LONGEST = 3600000; // asked again then
    return due <= now ? 0 : int(std::min((due - now) / 1000 + 1, LONGEST));
}

} // namespace

/** What the library calls, from within processOne(). */
struct CShellService::Callbacks
{
    static int show(sd_bus_message* request, void* service, sd_bus_error* error);
    static int nameAnswered(sd_bus_message* reply, void* service, sd_bus_error* error);

    // Unprivileged: for any other method the library asks the bus about the caller, and waits for the answer.
    static constexpr sd_bus_vtable Methods[] = {
        SD_BUS_VTABLE_START(0),
        SD_BUS_METHOD_WITH_NAMES("Show", "s", SD_BUS_PARAM(page), "", , show, SD_BUS_VTABLE_UNPRIVILEGED),
        SD_BUS_VTABLE_END,
    };
};

void CShellService::BusCloser::operator()(sd_bus* bus) const
{
    sd_bus_close_unref(bus);
}

CShellService::CShellService(QObject* parent, const char* address)
    : QObject(parent)
    , m_address(address)
    , m_due(new QTimer(this))
    , m_retry(new QTimer(this))
{
    m_due->setSingleShot(true);
    connect(m_due, &QTimer::timeout, this, &CShellService::processOne);
    m_retry->setSingleShot(true);
    m_retry->setInterval(RetryPeriod);
    connect(m_retry, &QTimer::timeout, this, &CShellService::connectToBus);
    connectToBus();
}

CShellService::~CShellService() = default;

int CShellService::openBus()
{
    sd_bus* created = nullptr;
    int result = sd_bus_new(&created);
    if (result < 0)
        return result;
    m_bus.reset(created);
    // Started without waiting; the request for the name is kept until the handshake is over.
    if ((result = sd_bus_set_address(created, m_address)) < 0
        || (result = sd_bus_set_bus_client(created, 1)) < 0
        || (result = sd_bus_add_object_vtable(created, nullptr, Object, Name, Callbacks::Methods, this)) < 0
        || (result = sd_bus_start(created)) < 0
        || (result = sd_bus_request_name_async(
                created, nullptr, Name, SD_BUS_NAME_QUEUE, Callbacks::nameAnswered, this))
            < 0)
        return result;
    const int fd = sd_bus_get_fd(created);
    if (fd < 0)
        return fd;
    m_readable = new QSocketNotifier(fd, QSocketNotifier::Read, this);
    m_writable = new QSocketNotifier(fd, QSocketNotifier::Write, this);
    connect(m_readable, &QSocketNotifier::activated, this, &CShellService::processOne);
    connect(m_writable, &QSocketNotifier::activated, this, &CShellService::processOne);
    arm();
    return 0;
}

void CShellService::connectToBus()
{
    if (const int result = openBus(); result < 0)
        disconnectFromBus(result);
}

void CShellService::disconnectFromBus(int error)
{
    if (!m_isTroubleLogged)
        qWarning("Shell service: %s; tried again every %d s", strerror(-error), RetryPeriod / 1000);
    m_isTroubleLogged = true;
    for (QSocketNotifier** notifier : {&m_readable, &m_writable}) {
        if (!*notifier)
            continue;
        (*notifier)->setEnabled(false); // before its descriptor is closed
        (*notifier)->deleteLater(); // it may be the one that tells
        *notifier = nullptr;
    }
    m_due->stop();
    m_bus.reset();
    m_retry->start();
}

void CShellService::processOne()
{
    m_nameError = 0;
    const int result = sd_bus_process(m_bus.get(), nullptr);
    if (m_nameError < 0)
        disconnectFromBus(m_nameError);
    else if (result < 0 && result != -EINTR)
        disconnectFromBus(result);
    else if (sd_bus_is_open(m_bus.get()) <= 0)
        disconnectFromBus(-ECONNRESET);
    else if (result > 0)
        m_due->start(0); // there may be more, which no descriptor tells: the event loop comes in between
    else
        arm();
}

void CShellService::arm()
{
    const int events = sd_bus_get_events(m_bus.get());
    uint64_t due = UINT64_MAX;
    if (events < 0 || sd_bus_get_timeout(m_bus.get(), &due) < 0) {
        m_due->start(0); // the next step tells what is wrong
        return;
    }
    m_readable->setEnabled((events & POLLIN) != 0);
    m_writable->setEnabled((events & POLLOUT) != 0);
    if (due == UINT64_MAX)
        m_due->stop();
    else
        m_due->start(millisecondsUntil(due));
}

int CShellService::Callbacks::nameAnswered(sd_bus_message* reply, void* service, sd_bus_error*)
{
    auto* self = static_cast<CShellService*>(service);
    // The connection is ended outside: the library still uses it.
    if ((self->m_nameError = -sd_bus_message_get_errno(reply)) == 0)
        self->m_isTroubleLogged = false;
    return 0;
}

int CShellService::Callbacks::show(sd_bus_message* request, void* service, sd_bus_error* error)
{
    const char* name = nullptr;
    const int result = sd_bus_message_read(request, "s", &name);
    if (result < 0)
        return result;
    const auto* page = std::find_if(
        std::begin(Pages), std::end(Pages), [name](const Page& each) { return !strcmp(each.name, name); });
    if (page == std::end(Pages))
        return sd_bus_error_setf(
            error, UnknownPage, "there is no page '%.40s'; use one of: %s", name, pageNames().c_str());
    // Not from here: a page may keep its caller until it is closed.
    const auto ask = [page] {
        if (g_pSigTransfer)
            page->ask(*g_pSigTransfer);
    };
    QMetaObject::invokeMethod(static_cast<CShellService*>(service), ask, Qt::QueuedConnection);
    return sd_bus_reply_method_return(request, "");
}
