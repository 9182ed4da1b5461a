#include "globalsetting.h"
#include "systemsettings.h"
#include "testfiles.h"

#include <QSettings>

#include <cstring>
#include <sys/ipc.h>
#include <sys/shm.h>
#include <sys/stat.h>

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

class tst_SystemSettings : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { QFile::remove(nativeFile()); }
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
};

void tst_SystemSettings::initTestCase()
{
    REQUIRE_INSTRUMENT();
    QCoreApplication::setOrganizationName("test"_s);
    QCoreApplication::setApplicationName("systemsettings"_s);
    qRegisterMetaType<S::SystemAttribute>();
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
    row("battery on", S::BatteryBacklightEnabled, true, 96, number(1));
    row("flag of a number", S::BatteryBacklightEnabled, 7, 96, number(1));
    row("flag of a stored text", S::BatteryBacklightEnabled, "true"_s, 96, number(1));
    row("battery time", S::BatteryBacklightTime, 30, 100, number(30));
    row("AC brightness", S::ACBrightness, 63, 116, number(63));
    row("no number", S::ACBrightness, "bright"_s, 116, number(0));
    row("password", S::PasswordVisible, true, 12, number(1));
    row("compress high", S::SaveScreenCompressLevel, 65000, 124, number(7));
    row("compress middle", S::SaveScreenCompressLevel, 65001, 124, number(3));
    row("compress none", S::SaveScreenCompressLevel, 65002, 124, number(0));
    row("maximum", S::SaveScreenMaxNum, 50, 132, number(50));
    row("application", S::InitDefAppIndex, 1, 512, number(1));
    row("delete", S::ProDelType, "PROMPT"_s, 80, number(1));
    row("save result", S::RstSaveType, "Prompt"_s, 88, number(1));
    row("alarm", S::AudibleAlarm, true, 8, number(1));
    row("english", S::UintType, "English"_s, 4, number(unit_english));
    row("usa", S::UserStyle, "USA"_s, 216, number(uistyle_usa));
    row("prefix", S::FileNamePrefix, "site"_s, 16, "site" + QByteArray(1, '\0'));
    row("prefix fills the field", S::FileNamePrefix, QString(63, QLatin1Char('p')), 16,
        QByteArray(63, 'p') + '\0');
    row("prefix longer than the field", S::FileNamePrefix, QString(5000, QLatin1Char('p')), 16,
        QByteArray(63, 'p') + '\0');
    row("prefix cut in a character", S::FileNamePrefix, QString(62, QLatin1Char('p')) + QChar(0xE4), 16,
        QByteArray(62, 'p') + '\0');
    row("clock 0", S::ClkSrc0, "gps"_s, 520, number(2));
    row("clock 1", S::ClkSrc1, "Atomic"_s, 524, number(3));
    row("clock 5", S::ClkSrc5, "gps"_s, 540, number(2));
    row("management port", S::ManPortBoot, true, 516, number(1));
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
    row("bl_off_battery_time"_s, "60"_s, S::BatteryBacklightTime, 60);
    row("bl_off_AC_time"_s, "60s"_s, S::ACBacklightTime, "60s"_s);
    row("br_level_AC"_s, ""_s, S::ACBrightness, ""_s);
    row("show_password"_s, "On"_s, S::PasswordVisible, true);
    row("save_screen_compress"_s, "High"_s, S::SaveScreenCompressLevel, 65000);
    row("save_screen_compress"_s, "NoCompress"_s, S::SaveScreenCompressLevel, 65002);
    row("save_screen_compress"_s, "on"_s, S::SaveScreenCompressLevel, 65001);
    row("save_screen_maxnum"_s, "99999999999"_s, S::SaveScreenMaxNum, "99999999999"_s);
    row("profdel_type"_s, "prompt"_s, S::ProDelType, "prompt"_s);
    row("unittype"_s, "english"_s, S::UintType, "english"_s);
    row("fname_prefix"_s, "A & B"_s, S::FileNamePrefix, "A & B"_s);
    row("clock_source_0"_s, "gps"_s, S::ClkSrc0, "gps"_s);
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
    const auto cleared = qScopeGuard([] { QDir().rmdir(nativeFile()); });
    QTest::ignoreMessage(QtWarningMsg, qPrintable("[%1]: Settings can not be stored."_s.arg(nativeFile())));
    Settings settings;
    settings.setAttribute(S::FileNamePrefix, "here all the same"_s);
    QCoreApplication::processEvents();
    QCOMPARE(settings.getAttribute(S::FileNamePrefix), QVariant("here all the same"_s));
}

QTEST_GUILESS_MAIN(tst_SystemSettings)
#include "tst_systemsettings.moc"
