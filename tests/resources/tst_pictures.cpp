// The compiled-in pictures: all that the sources name are there, and every one shows something.

#include <QDir>
#include <QDirIterator>
#include <QDomDocument>
#include <QImage>
#include <QtTest>

namespace {

QImage load(const QString& name)
{
    return QImage(QStringLiteral(":/images/") + name).convertToFormat(QImage::Format_ARGB32);
}

/** Smallest rectangle that holds everything visible. */
QRect visible(const QImage& image)
{
    QRect result;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) > 32)
                result |= QRect(x, y, 1, 1);
        }
    }
    return result;
}

} // namespace

class TestPictures : public QObject
{
    Q_OBJECT

private slots:
    void everyNamedPictureIsThere()
    {
        const QRegularExpression picture(QStringLiteral(":/images/([^\"%]+)\""));
        const QString source = qEnvironmentVariable("INSTRUMENT_SOURCE");
        QSet<QString> named;
        for (const char* part :
            {"mainwindow", "topbar", "power", "storage", "platform", "simulator/plugins"}) {
            QDirIterator files(source + QLatin1Char('/') + QLatin1String(part), {QStringLiteral("*.cpp")},
                QDir::Files, QDirIterator::Subdirectories);
            while (files.hasNext()) {
                QFile file(files.next());
                QVERIFY(file.open(QIODevice::ReadOnly));
                const QString text = QString::fromUtf8(file.readAll());
                for (auto found = picture.globalMatch(text); found.hasNext();)
                    named << found.next().captured(1);
            }
        }
        QVERIFY2(named.size() > 40, "the sources are not where they were");
        for (const QString& name : qAsConst(named))
            QVERIFY2(QFile::exists(QStringLiteral(":/images/") + name), qPrintable(name));
    }

    void everyPictureShowsSomething()
    {
        for (const QString& name : QDir(QStringLiteral(":/images")).entryList(QDir::Files))
            QVERIFY2(!visible(load(name)).isNull(), qPrintable(name));
    }

    void defaultsAreWellFormed_data()
    {
        QTest::addColumn<QString>("file");
        for (const char* name :
            {"zentra-settings.xml", "zentra-desktop.xml", "result-config.xml", "result-type-config.xml"})
            QTest::newRow(name) << QStringLiteral(":/conf/") + QString::fromLatin1(name);
    }

    void defaultsAreWellFormed()
    {
        QFETCH(QString, file);
        QFile source(file);
        QVERIFY(source.open(QIODevice::ReadOnly));
        QDomDocument document;
        QString error;
        QVERIFY2(document.setContent(&source, &error), qPrintable(error));
    }
};

QTEST_GUILESS_MAIN(TestPictures)
#include "tst_pictures.moc"
