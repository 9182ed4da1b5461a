#include "filedescriptor.h"
#include "globalsetting.h"
#include "smalldisk.h"
#include "systemsettings.h"
#include "testfiles.h"

#include <QSettings>

#include <cstring>
#include <fcntl.h>
#include <linux/auto_fs.h>
#include <memory>
#include <sys/ioctl.h>
#include <sys/ipc.h>
#include <sys/shm.h>
#include <sys/stat.h>
#include <thread>
#include <vector>

using S = CSystemSettings;

static const QString KeyFile = "/usr/local/arvo/share/res/keys/global"_s;
static const QString Profile = "/home/arvo/arvo-prof/arvoglobal-setting/Last configuration"_s;
static const char NoSegment[] = "Get Global Setting share memory error!";
constexpr int BlockSize = sizeof(stArvo_global_setting);
constexpr char Untouched = 0x5A;

/** Each test starts as a new process would. */
class Settings : public CSystemSettings
{
public:
    Settings() = default;
};

/** The instrument's segment with a size of the test's choice, attached here as another process would have it.
 */
class Segment
{
public:
    explicit Segment(int size)
        : m_size(size)
    {
        const key_t key = ::ftok(qPrintable(KeyFile), 86);
        ::shmctl(::shmget(key, 0, 0), IPC_RMID, nullptr); // what the instrument made
        m_id = ::shmget(key, static_cast<size_t>(size), IPC_CREAT | IPC_EXCL | 0666);
        m_address = m_id > 0 ? static_cast<char*>(::shmat(m_id, nullptr, 0)) : nullptr;
        if (m_address)
            std::memset(m_address, Untouched, static_cast<size_t>(size));
    }
    ~Segment()
    {
        if (m_address)
            ::shmdt(m_address);
        ::shmctl(m_id, IPC_RMID, nullptr);
    }
    Segment(const Segment&) = delete;
    Segment& operator=(const Segment&) = delete;

    bool isValid() const { return m_address; }
    QByteArray content() const { return QByteArray(m_address, m_size); }

private:
    int m_size;
    int m_id = -1;
    char* m_address = nullptr;
};

static QByteArray number(qint32 value)
{
    return QByteArray(reinterpret_cast<const char*>(&value), sizeof value);
}

// Asked once: a second QSettings object on the file writes what the first one holds back.
static const QString& nativeFile()
{
    static const QString name = QSettings().fileName();
    return name;
}

// The line of the log that says it, whatever reason it gives.
static QRegularExpression stored(const char* what)
{
    return QRegularExpression(
        "^\\[%1\\]: Settings %2"_s.arg(QRegularExpression::escape(nativeFile()), QString::fromLatin1(what)));
}

static int runningThreads()
{
    return QDir("/proc/self/task"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size();
}

/** A disk that never answers, over a directory, as long as it lives: nobody serves what is asked there. */
class CDeadDisk
{
public:
    explicit CDeadDisk(const QString& directory)
        : m_directory(QFile::encodeName(directory))
    {
        int ends[2];
        QDir().mkpath(directory);
        ::setpgid(0, 0); // processes of the group of the one that serves are not held
        if (::pipe2(ends, O_CLOEXEC | O_DIRECT) != 0)
            return;
        m_requests.reset(ends[0]);
        const CFileDescriptor kernel(ends[1]);
        const QByteArray options
            = "fd=" + QByteArray::number(kernel.get()) + ",pgrp=1,minproto=5,maxproto=5,indirect";
        if (::mount("test", m_directory.constData(), "autofs", 0, options.constData()) == 0)
            m_root.reset(::open(m_directory.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    }
    ~CDeadDisk()
    {
        if (!isMounted())
            return;
        ::ioctl(m_root.get(), AUTOFS_IOC_CATATONIC, 0); // lets go who waits
        ::umount2(m_directory.constData(), MNT_DETACH);
    }
    CDeadDisk(const CDeadDisk&) = delete;
    CDeadDisk& operator=(const CDeadDisk&) = delete;

    bool isMounted() const { return m_root.isValid(); }

private:
    QByteArray m_directory;
    CFileDescriptor m_requests;
    CFileDescriptor m_root;
};

class tst_SystemSettings : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void sharedFields_data();
    void sharedFields();
    void segmentsThatAreNone_data();
    void segmentsThatAreNone();
    void profile_data();
    void profile();
    void unusableProfiles_data();
    void unusableProfiles();
    void valuesPersist();
    void unchangedValuesAreNotWritten();
    void unwritableStoreIsReported();
    void foreignThings_data();
    void foreignThings();
    void foreignSettingsStay();
    void fullDisk_data();
    void fullDisk();
    void deadDisk();
    void otherThreads();
    void endOfTheProcess();

private:
    int m_threads = 0; // before any store had one of its own
};

void tst_SystemSettings::initTestCase()
{
    REQUIRE_INSTRUMENT();
    m_threads = runningThreads();
    QCoreApplication::setOrganizationName("test"_s);
    QCoreApplication::setApplicationName("systemsettings"_s);
    qRegisterMetaType<S::SystemAttribute>();
}

void tst_SystemSettings::init()
{
    for (const QString& name : {nativeFile(), nativeFile() + ".lock"_s}) {
        if (!QFile::remove(name))
            QDir().rmdir(name);
    }
}

void tst_SystemSettings::sharedFields_data()
{
    QTest::addColumn<int>("attribute");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("offset");
    QTest::addColumn<QByteArray>("bytes");
    const auto row
        = [](const char* name, S::SystemAttribute attribute, const QVariant& value, int offset,
              const QByteArray& bytes) { QTest::newRow(name) << int(attribute) << value << offset << bytes; };
    row("flag of a number", S::BatteryBacklightEnabled, 7, 96, number(1));
    row("flag of a stored text", S::BatteryBacklightEnabled, "true"_s, 96, number(1));
    row("no number", S::ACBrightness, "bright"_s, 116, number(0));
    row("compress middle", S::SaveScreenCompressLevel, 65001, 124, number(3));
    row("delete", S::ProDelType, "PROMPT"_s, 80, number(1));
    row("prefix fills the field", S::FileNamePrefix, QString(63, QLatin1Char('p')), 16,
        QByteArray(63, 'p') + '\0');
    row("prefix longer than the field", S::FileNamePrefix, QString(5000, QLatin1Char('p')), 16,
        QByteArray(63, 'p') + '\0');
    row("prefix cut in a character", S::FileNamePrefix, QString(62, QLatin1Char('p')) + QChar(0xE4), 16,
        QByteArray(62, 'p') + '\0');
    row("clock 1", S::ClkSrc1, "Atomic"_s, 524, number(3));
}

void tst_SystemSettings::sharedFields()
{
    QFETCH(int, attribute);
    QFETCH(QVariant, value);
    QFETCH(int, offset);
    QFETCH(QByteArray, bytes);
    const Segment segment(BlockSize);
    QVERIFY(segment.isValid());
    Settings settings;
    QSignalSpy changed(&settings, &S::attributeChanged);
    const auto which = static_cast<S::SystemAttribute>(attribute);
    const QByteArray before(BlockSize, Untouched);

    settings.setAttribute(which, value, false);
    QCOMPARE(segment.content(), before);
    settings.setAttribute(which, value);
    QCOMPARE(segment.content(), QByteArray(before).replace(offset, bytes.size(), bytes));
    QCOMPARE(settings.getAttribute(which), value);
    QCOMPARE(changed.count(), 2); // the same value is announced again
    QCOMPARE(changed.at(1).at(0).value<S::SystemAttribute>(), which);
}

void tst_SystemSettings::segmentsThatAreNone_data()
{
    QTest::addColumn<int>("size");
    QTest::newRow("missing") << 0;
    QTest::newRow("one byte short") << BlockSize - 1;
    QTest::newRow("tiny") << 16;
}

void tst_SystemSettings::segmentsThatAreNone()
{
    QFETCH(int, size);
    const Segment segment(size); // of no bytes: none is made
    QCOMPARE(segment.isValid(), size > 0);
    QTest::ignoreMessage(QtWarningMsg, NoSegment);
    Settings settings;
    settings.setAttribute(S::UintType, "english"_s);
    settings.setAttribute(S::ClkSrc5, "gps"_s);
    QCOMPARE(settings.getAttribute(S::ClkSrc5), QVariant("gps"_s));
    if (size > 0)
        QCOMPARE(segment.content(), QByteArray(size, Untouched));
}

void tst_SystemSettings::profile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("attribute");
    QTest::addColumn<QVariant>("value");
    const auto row
        = [](const QString& name, const QString& text, S::SystemAttribute attribute, const QVariant& value) {
              QTest::newRow(qPrintable(name + " "_s + text)) << name << text << int(attribute) << value;
          };
    row("bl_off_AC_time"_s, "60s"_s, S::ACBacklightTime, "60s"_s);
    row("br_level_AC"_s, ""_s, S::ACBrightness, ""_s);
    row("show_password"_s, "On"_s, S::PasswordVisible, true);
    row("save_screen_compress"_s, "NoCompress"_s, S::SaveScreenCompressLevel, 65002);
    row("save_screen_compress"_s, "on"_s, S::SaveScreenCompressLevel, 65001);
    row("save_screen_maxnum"_s, "99999999999"_s, S::SaveScreenMaxNum, "99999999999"_s);
    row("fname_prefix"_s, "A & B"_s, S::FileNamePrefix, "A & B"_s);
}

void tst_SystemSettings::profile()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    QFETCH(int, attribute);
    QFETCH(QVariant, value);
    writeFile(Profile,
        QByteArray("<arvo><setting unknown='1' ") + name.toUtf8() + "='" + text.toHtmlEscaped().toUtf8()
            + "'/></arvo>");
    const Segment segment(BlockSize);
    QVERIFY(segment.isValid());
    Settings settings;
    QSignalSpy changed(&settings, &S::attributeChanged);
    settings.loadDefAttribute();
    QCOMPARE(changed.count(), 1);
    const auto which = static_cast<S::SystemAttribute>(attribute);
    QCOMPARE(changed.at(0).at(0).value<S::SystemAttribute>(), which);
    QCOMPARE(settings.getAttribute(which).userType(), value.userType());
    QCOMPARE(settings.getAttribute(which), value);
    QCOMPARE(segment.content(), QByteArray(BlockSize, Untouched));
}

void tst_SystemSettings::unusableProfiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("failure");
    QTest::newRow("missing") << QByteArray() << QByteArray("open");
    QTest::newRow("cut off") << QByteArray("<a unittype='english'><b") << QByteArray("parse");
    QTest::newRow("too large") << "<a unittype='english'>" + QByteArray(1024 * 1024, ' ') + "</a>"
                               << QByteArray("parse");
}

void tst_SystemSettings::unusableProfiles()
{
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, failure);
    writeFile(Profile, content);
    if (content.isEmpty())
        QVERIFY(QFile::remove(Profile));
    Settings settings;
    settings.setAttribute(S::UintType, "metric"_s);
    QSignalSpy changed(&settings, &S::attributeChanged);
    const QByteArray line = "[" + Profile.toUtf8() + "]: Configuration file can not " + failure + ".";
    QTest::ignoreMessage(QtWarningMsg, line.constData());
    settings.loadDefAttribute();
    QCOMPARE(changed.count(), 0);
    QCOMPARE(settings.getAttribute(S::UintType), QVariant("metric"_s));
}

void tst_SystemSettings::valuesPersist()
{
    {
        Settings settings;
        settings.setAttribute(S::FileNamePrefix, "kept"_s);
        settings.setAttribute(S::PairedBTHDevName, "headset"_s);
    }
    Settings settings;
    QCOMPARE(settings.getAttribute(S::FileNamePrefix), QVariant("kept"_s));
    QCOMPARE(settings.getAttribute(S::Language), QVariant("headset"_s));
}

void tst_SystemSettings::unchangedValuesAreNotWritten()
{
    const auto setAll = [](S& settings) {
        for (int value = S::AttributeBegin + 1; value < S::AttributeEnd; ++value)
            settings.setAttribute(static_cast<S::SystemAttribute>(value), value % 7);
    };
    const auto fileNumber = [] {
        struct stat state = {};
        return ::stat(qPrintable(nativeFile()), &state) == 0 ? state.st_ino : 0;
    };
    Settings settings;
    setAll(settings);
    QCOMPARE(fileNumber(), ino_t(0)); // not in between
    QTRY_VERIFY(fileNumber() != 0);
    const ino_t written = fileNumber();

    // Every write makes a new file.
    settings.setAttribute(S::ClientWindowSwitched, 1);
    QTRY_VERIFY(fileNumber() != written);
    const ino_t rewritten = fileNumber();
    for (int round = 0; round < 3; ++round) {
        settings.setAttribute(S::ClientWindowSwitched, 1);
        settings.setAttribute(S::Language, int(S::Language) % 7);
        QCoreApplication::processEvents();
    }
    QCOMPARE(fileNumber(), rewritten);
}

void tst_SystemSettings::unwritableStoreIsReported()
{
    QVERIFY(QDir().mkpath(nativeFile()));
    QTest::ignoreMessage(QtWarningMsg, stored("can not be read"));
    QTest::ignoreMessage(QtWarningMsg, stored("can not be stored"));
    {
        Settings settings;
        settings.setAttribute(S::FileNamePrefix, "here all the same"_s);
        QCOMPARE(settings.getAttribute(S::FileNamePrefix), QVariant("here all the same"_s));
    }
    QVERIFY(QDir(nativeFile()).isEmpty());
}

void tst_SystemSettings::foreignThings_data()
{
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QByteArray>("kind"); // directory, pipe, link (to `content`), huge, else file
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("lock of another host")
        << ".lock"_s << QByteArray("file") << QByteArray("1\nother\nhost\n");
    QTest::newRow("empty lock") << ".lock"_s << QByteArray("file") << QByteArray();
    QTest::newRow("directory as lock") << ".lock"_s << QByteArray("directory") << QByteArray();
    QTest::newRow("pipe as lock") << ".lock"_s << QByteArray("pipe") << QByteArray();
    QTest::newRow("dead link as lock") << ".lock"_s << QByteArray("link") << QByteArray("/nowhere/lock");
    QTest::newRow("pipe") << QString() << QByteArray("pipe") << QByteArray();
    QTest::newRow("link to itself") << QString() << QByteArray("link") << nativeFile().toUtf8();
    QTest::newRow("endless") << QString() << QByteArray("link") << QByteArray("/dev/zero");
    QTest::newRow("50 MB") << QString() << QByteArray("huge") << QByteArray();
    QTest::newRow("no settings") << QString() << QByteArray("file") << QByteArray("\0\x80[=\n]\n%%\n", 10);
}

void tst_SystemSettings::foreignThings()
{
    QFETCH(QString, suffix);
    QFETCH(QByteArray, kind);
    QFETCH(QByteArray, content);
    const QString name = nativeFile() + suffix;
    if (kind == "directory")
        QVERIFY(QDir().mkpath(name));
    else if (kind == "pipe")
        QCOMPARE(::mkfifo(qPrintable(name), 0600), 0);
    else if (kind == "link")
        QVERIFY(QFile::link(QString::fromUtf8(content), name));
    else
        writeFile(name, content);
    if (kind == "huge")
        QVERIFY(QFile::resize(name, 50LL * 1000 * 1000)); // sparse
    struct stat before = {};
    QCOMPARE(::lstat(qPrintable(name), &before), 0);
    {
        Settings settings;
        settings.setAttribute(S::FileNamePrefix, "kept"_s);
        QCoreApplication::processEvents();
        QCOMPARE(settings.getAttribute(S::FileNamePrefix), QVariant("kept"_s));
    }
    QCOMPARE(QSettings().value("FileNamePrefix"_s), QVariant("kept"_s));
    struct stat after = {};
    if (suffix.isEmpty())
        QCOMPARE(::stat(qPrintable(name), &after), 0);
    else
        QCOMPARE(::lstat(qPrintable(name), &after), 0);
    QVERIFY(suffix.isEmpty() ? S_ISREG(after.st_mode) : before.st_ino == after.st_ino);
    if (suffix.isEmpty())
        QCOMPARE(int(after.st_mode & 07777), 0644);
}

void tst_SystemSettings::foreignSettingsStay()
{
    writeFile(nativeFile(), "[General]\nAudibleAlarm=true\n\n[Another]\nkey=a, b\n");
    {
        Settings settings;
        QCOMPARE(settings.getAttribute(S::AudibleAlarm), QVariant("true"_s));
        // Another program writes while this one runs.
        writeFile(nativeFile(), "[Another]\nkey=a, c\n");
        settings.setAttribute(S::FileNamePrefix, "mine"_s);
    }
    QCOMPARE(QSettings().value("Another/key"_s), QVariant(QStringList{"a"_s, "c"_s}));
    QCOMPARE(QSettings().value("FileNamePrefix"_s), QVariant("mine"_s));
}

void tst_SystemSettings::fullDisk_data()
{
    QTest::addColumn<bool>("isReal");
    QTest::newRow("no room on it") << true;
    QTest::newRow("no room anywhere") << false;
}

void tst_SystemSettings::fullDisk()
{
    QFETCH(bool, isReal);
    std::unique_ptr<CSmallDisk> disk;
    if (isReal) {
        disk = std::make_unique<CSmallDisk>(QFileInfo(nativeFile()).path(), 256);
        if (!disk->isMounted())
            QSKIP("This instrument can not mount a small disk.");
    }
    {
        Settings settings;
        settings.setAttribute(S::UintType, "english"_s);
    }
    const QByteArray before = readFile(nativeFile());
    QVERIFY(before.contains("english"));
    Settings settings;
    QCoreApplication::processEvents();
    QTRY_COMPARE(runningThreads(), m_threads);
    {
        std::unique_ptr<CFileSizeLimit> limit;
        if (isReal)
            disk->fill();
        else
            limit = std::make_unique<CFileSizeLimit>(before.size() + 10);
        QTest::ignoreMessage(QtWarningMsg, stored("can not be stored"));
        settings.setAttribute(S::FileNamePrefix, QString(5000, QLatin1Char('p')));
        QCoreApplication::processEvents();
        QTRY_COMPARE(runningThreads(), m_threads);
        QCOMPARE(readFile(nativeFile()), before);
        if (isReal)
            disk->makeRoom();
    }
    // What found no room is stored with what comes next.
    settings.setAttribute(S::ProDelType, "prompt"_s);
    QTRY_VERIFY(readFile(nativeFile()).contains("ProDelType=prompt"));
    QVERIFY(readFile(nativeFile()).contains("ppp"));
}

void tst_SystemSettings::deadDisk()
{
    {
        const CDeadDisk disk(QFileInfo(nativeFile()).path());
        if (!disk.isMounted())
            QSKIP("This instrument can not mount a disk that does not answer.");
        QTest::ignoreMessage(QtWarningMsg, stored("can not be read in time"));
        QTest::ignoreMessage(QtWarningMsg, stored("can not be stored in time"));
        Settings settings;
        settings.setAttribute(S::FileNamePrefix, "here all the same"_s);
        QCoreApplication::processEvents();
        settings.setAttribute(S::ProDelType, "prompt"_s);
        QCoreApplication::processEvents();
        QCOMPARE(settings.getAttribute(S::FileNamePrefix), QVariant("here all the same"_s));
    }
    QTRY_COMPARE(runningThreads(), m_threads);
}

void tst_SystemSettings::otherThreads()
{
    constexpr int Last = 500;
    const auto attribute = [](int index) { return static_cast<S::SystemAttribute>(S::ClkSrc0 + index); };
    {
        Settings settings;
        std::vector<std::thread> threads;
        threads.reserve(4);
        for (int index = 0; index < 4; ++index) {
            threads.emplace_back([&settings, attribute, index] {
                for (int value = 0; value <= Last; ++value)
                    settings.setAttribute(attribute(index), value);
            });
        }
        for (int value = 0; value <= Last; ++value) {
            settings.setAttribute(S::SaveScreenMaxNum, value);
            QCoreApplication::processEvents();
        }
        for (std::thread& thread : threads)
            thread.join();
    }
    const Settings settings;
    for (int index = 0; index < 4; ++index)
        QCOMPARE(settings.getAttribute(attribute(index)).toInt(), Last);
    QCOMPARE(settings.getAttribute(S::SaveScreenMaxNum).toInt(), Last);
}

void tst_SystemSettings::endOfTheProcess()
{
    Settings settings;
    // The last turn of the event loop.
    QTimer::singleShot(0, &settings, [&settings] {
        settings.setAttribute(S::FileNamePrefix, "in time"_s);
        QCoreApplication::quit();
    });
    QCoreApplication::exec();
    QVERIFY(readFile(nativeFile()).contains("FileNamePrefix=in time"));
}

QTEST_GUILESS_MAIN(tst_SystemSettings)
#include "tst_systemsettings.moc"
