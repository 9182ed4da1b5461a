#include "mainwindow.h"
#include "sigtransfer.h"
#include "widgets/pushbutton/pushbutton.h"

#include "infopage.h"
#include "testfiles.h"
#include "withdialog.h"
#include "xscreen.h"

namespace {

const QString MOUNTED = QStringLiteral("/tmp/var/lib/usbd/stat-mounted");
const QString MOUNT_POINT = QStringLiteral("/home/usbd");

} // namespace

/** A USB drive from the socket to the page and back: device monitor, window, page, touch, USB daemon. */
class TestUsbDrive : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup() { QVERIFY(simctl("usb unplug"_s)); }
    void pageFollowsTheDrive_data();
    void pageFollowsTheDrive();

private:
    std::unique_ptr<CMainWindow> m_window;
    CXScreen m_screen;
};

void TestUsbDrive::initTestCase()
{
    m_window = std::make_unique<CMainWindow>(nullptr);
    m_window->setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void TestUsbDrive::pageFollowsTheDrive_data()
{
    QTest::addColumn<int>("language");
    QTest::newRow("en") << int(LANGUAGE_ENGLISH);
    QTest::newRow("ge") << int(LANGUAGE_GERMAN);
}

void TestUsbDrive::pageFollowsTheDrive()
{
    QFETCH(int, language);
    const CShellLanguage spoken{LanguageCode(language)};
    QVERIFY(spoken.isLoaded());
    m_window->translate();
    QString without;
    CWithDialog page([&](CDialog* dialog) {
        without = textOf(*dialog, "usbd");
        auto* button = dialog->findChild<CPushButton*>(QStringLiteral("usbDrive"));
        QVERIFY(button && !button->isVisible());
        keepPicture(*dialog, "storage-page-no-drive "_s + QLatin1String(QTest::currentDataTag()));

        QVERIFY(simctl("usb mount"_s));
        QTRY_VERIFY(button->isVisible());
        QVERIFY(textOf(*dialog, "usbd") != without);
        QTRY_VERIFY(textOf(*dialog, "usbdAvail").toInt() > 0); // measured aside
        keepPicture(*dialog, "storage-page-drive-in-use "_s + QLatin1String(QTest::currentDataTag()));

        // Mounted, and cannot be measured: it can still be released.
        QVERIFY(QFile::rename(MOUNT_POINT, MOUNT_POINT + QLatin1Char('2')));
        QTRY_COMPARE(textOf(*dialog, "usbdAvail"), QStringLiteral("---"));
        QVERIFY(button->isVisible());
        QVERIFY(textOf(*dialog, "usbd") != without);
        keepPicture(*dialog, "storage-page-drive-unknown "_s + QLatin1String(QTest::currentDataTag()));
        QVERIFY(QFile::rename(MOUNT_POINT + QLatin1Char('2'), MOUNT_POINT));

        m_screen.touch(button->mapToGlobal(button->rect().center()));
        QTRY_VERIFY(!QFile::exists(MOUNTED)); // the daemon's answer to the request
        QTRY_VERIFY(!button->isVisible());
        QCOMPARE(textOf(*dialog, "usbd"), without);
        const auto* ok = dialog->findChild<CPushButton*>(QStringLiteral("ok"));
        m_screen.touch(ok->mapToGlobal(ok->rect().center()));
        QTRY_VERIFY(!dialog->isVisible());
    });
    emit g_pSigTransfer->queryStorageInfo();
    QVERIFY(page.isDone());
}

QTEST_MAIN(TestUsbDrive)
#include "tst_usbdrive.moc"
