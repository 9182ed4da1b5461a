#pragma once

#include <QObject>
#include <memory>

class QSocketNotifier;
class QTimer;
struct sd_bus;

/**
 * The shell's own service on the system bus: other processes open pages through it, above all those that have
 * no tile. The name, the object and the interface are constants below; one method,
 *
 *     Show(s page)      "power", "storage", "help" or "disk"
 *
 * asks for a page as a touch on its button would, through the signal relay. The answer comes before the page
 * does and says only that it was asked for: pages are modal, and may have to wait. An unknown page is
 * answered with the error "org.zentra.Shell.Error.UnknownPage", whose text names the pages there are.
 *
 * No bus holds the shell up: nothing here waits, the connection is driven by the event loop, and one message
 * is taken at a time, so that a flood of them leaves room for touches. Without a bus, or after it went, the
 * next try comes RetryPeriod later; while it is there nothing polls. A bus or a name that cannot be had is
 * logged once, until it is had again.
 *
 * Made once the first frame is on the screen; owned by its parent. Interface thread.
 */
class CShellService : public QObject
{
    Q_OBJECT

public:
    static constexpr char Name[] = "org.zentra.Shell"; ///< also of the interface
    static constexpr char Object[] = "/org/zentra/Shell";
    static constexpr int RetryPeriod = 4000; ///< ms

    /** Begins to connect. @param address bus address, the system bus's without one */
    explicit CShellService(QObject* parent, const char* address = "unix:path=/run/dbus/system_bus_socket");
    ~CShellService() override;

private:
    struct Callbacks;
    struct BusCloser
    {
        void operator()(sd_bus* bus) const;
    };

    void connectToBus();
    void disconnectFromBus(int error);
    /** Begins one connection. @return 0, or the negative number of the error */
    int openBus();
    void processOne();
    /** Waits for what the connection needs next. */
    void arm();

    const char* const m_address;
    std::unique_ptr<sd_bus, BusCloser> m_bus;
    QSocketNotifier* m_readable = nullptr; // both null without a connection
    QSocketNotifier* m_writable = nullptr;
    QTimer* m_due = nullptr; // the connection's own time limit
    QTimer* m_retry = nullptr;
    int m_nameError = 0; // why the name was refused
    bool m_isTroubleLogged = false;
};
