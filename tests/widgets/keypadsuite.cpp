#include "suites.h"
#include "windowfocus.h"

#include "widgets/checkbox/checkbox.h"
#include "widgets/keypad/keypaddialog.h"
#include "widgets/label/label.h"
#include "widgets/messagebox/messagebox.h"
#include "widgets/widget/widget.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>
#include <QtTest>

#include <functional>

namespace {

using Pad = CKeyPadFactory;

/** The key of this name on the page that is seen. */
CPushButton* key(const QWidget& pad, const QString& name)
{
    for (auto* button : pad.findChildren<CPushButton*>(name)) {
        if (button->isVisibleTo(&pad))
            return button;
    }
    return nullptr;
}

void touch(const QWidget& pad, const QString& name)
{
    CPushButton* button = key(pad, name);
    QVERIFY2(button, qPrintable(name));
    QTest::mouseClick(button, Qt::LeftButton);
}

QLineEdit* textOf(const QWidget& pad)
{
    return pad.findChild<QLineEdit*>(QStringLiteral("text"));
}

void show(CKeyPadDialog& pad)
{
    pad.show();
    QVERIFY(takeFocus(&pad));
    QTRY_VERIFY(textOf(pad)->hasFocus());
}

/** Runs `act` with the pad or box that comes up next. */
void withNextModal(const std::function<void(QWidget&)>& act)
{
    QTimer::singleShot(0, qApp, [act] {
        QWidget* modal = QApplication::activeModalWidget();
        QVERIFY(modal);
        act(*modal);
    });
}

} // namespace

class CKeyPadSuite : public QObject
{
    Q_OBJECT

private slots:
    void touchesType_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("start");
        QTest::addColumn<int>("maxLength");
        QTest::addColumn<QString>("touched"); // names of keys
        QTest::addColumn<QString>("typed");
        const auto row = [](const char* name, int type, const char* start, int maxLength, const char* touched,
                             const char* typed) {
            QTest::newRow(name) << type << QString::fromLatin1(start) << maxLength
                                << QString::fromLatin1(touched) << QString::fromLatin1(typed);
        };
        row("shift for one letter", Pad::KeyPadText, "", 0, "shift keya keyb", "Ab");
        row("shift locked", Pad::KeyPadText, "", 0, "shift shift keya keyb shift keyc", "ABc");
        row("symbols and back", Pad::KeyPadText, "", 0, "page key7 key& key\\ page keyx", "7&\\x");
        row("corrections at the cursor", Pad::KeyPadText, "abc", 0,
            "left left backspace keyx right key, backspace key.", "xb.c");
        row("no more than the limit", Pad::KeyPadText, "abc", 4, "keyd keye backspace keyf keyg", "abcf");
        row("a longer text is cut", Pad::KeyPadText, "abcdef", 4, "backspace", "abc");
        row("cleared", Pad::KeyPadText, "abc", 0, "clear keyx", "x");
        row("number", Pad::KeyPadNumber, "5", 0, "key0 key- backspace key. key7", "50.7");
        row("address", Pad::KeyPadAddress, "", 0, "keyf keye key8 key0 key: key: key1 key% keyl keyo",
            "fe80::1%lo");
        row("password", Pad::KeyPadPassword, "tiger", 8, "page key! key?", "tiger!?");
    }

    void touchesType()
    {
        QFETCH(int, type);
        QFETCH(QString, start);
        QFETCH(int, maxLength);
        QFETCH(QString, touched);
        CKeyPadDialog pad(QStringLiteral("Name"), start, Pad::KeyPadType(type));
        if (maxLength > 0)
            pad.setMaxLength(maxLength);
        show(pad);
        for (const QString& name : touched.split(QLatin1Char(' ')))
            touch(pad, name);
        QTEST(pad.text(), "typed");
        const auto* count = pad.findChild<CLabel*>(QStringLiteral("count"));
        QCOMPARE(count->isVisible(), maxLength > 0);
        if (maxLength > 0)
            QCOMPARE(count->text(), QStringLiteral("%1 / %2").arg(pad.text().size()).arg(maxLength));
    }

    void keyboardTypes()
    {
        CKeyPadDialog pad(QStringLiteral("Name"), QStringLiteral("a"), Pad::KeyPadText);
        show(pad);
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("B c"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backspace);
        // No key of the pad gives this letter; a keyboard may.
        QKeyEvent umlaut(QEvent::KeyPress, Qt::Key_Adiaeresis, Qt::NoModifier, QStringLiteral("\u00e4"));
        QCoreApplication::sendEvent(QApplication::focusWidget(), &umlaut);
        QCOMPARE(pad.text(), QStringLiteral("aB \u00e4"));

        CKeyPadDialog number(QStringLiteral("Count"), QString(), Pad::KeyPadNumber);
        number.setAllowedCharacters(QStringLiteral("0123456789"));
        show(number);
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("-1a2.3"));
        QCOMPARE(number.text(), QStringLiteral("123"));
        QVERIFY(!key(number, QStringLiteral("key-"))->isEnabled());
    }

    void arrowKeysMoveTheMarkerNotTheCursor()
    {
        CKeyPadDialog pad(QStringLiteral("Name"), QStringLiteral("ab"), Pad::KeyPadText);
        show(pad);
        const auto press = [](Qt::Key code) { QTest::keyClick(QApplication::focusWidget(), code); };
        press(Qt::Key_Right);
        QCOMPARE(pad.markedButton()->objectName(), QStringLiteral("keyq"));
        press(Qt::Key_Right);
        press(Qt::Key_Return);
        QTRY_COMPARE(pad.text(), QStringLiteral("abw"));
        for (int i = 0; i < 3; ++i)
            press(Qt::Key_Down);
        press(Qt::Key_Left);
        press(Qt::Key_Left);
        QCOMPARE(pad.markedButton()->objectName(), QStringLiteral("page"));
        press(Qt::Key_Return);
        QTRY_VERIFY(key(pad, QStringLiteral("key1")));
        // The key was replaced by its like on the other page: the marker is seen and goes on from there.
        QVERIFY(pad.markedButton() && pad.markedButton()->isVisible());
        QCOMPARE(pad.markedButton()->objectName(), QStringLiteral("page"));
        press(Qt::Key_Up);
        QCOMPARE(pad.markedButton()->objectName(), QStringLiteral("key;"));
    }

    void bytesAreCounted()
    {
        const QString umlauts(6, QChar(0xe4));
        CKeyPadDialog pad(QStringLiteral("Name"), umlauts, Pad::KeyPadText);
        pad.setMaxBytes(9); // cuts between characters
        QCOMPARE(pad.text(), umlauts.left(4));
        show(pad);
        touch(pad, QStringLiteral("keya"));
        touch(pad, QStringLiteral("keyb"));
        QCOMPARE(pad.text(), umlauts.left(4) + QLatin1Char('a'));
        QCOMPARE(pad.findChild<CLabel*>(QStringLiteral("count"))->text(), QStringLiteral("9 / 9"));
        touch(pad, QStringLiteral("clear"));
        QCOMPARE(pad.text(), QString());
    }

    void onlyOkChangesTheText()
    {
        QString text = QStringLiteral("a");
        withNextModal([](QWidget& pad) {
            touch(pad, QStringLiteral("keyb"));
            touch(pad, QStringLiteral("cancel"));
        });
        QVERIFY(!Pad::accessKeyPad(nullptr, QStringLiteral("Name"), text, Pad::KeyPadText, 5));
        QCOMPARE(text, QStringLiteral("a"));

        auto* owner = new CWidget;
        withNextModal([owner](QWidget& pad) {
            touch(pad, QStringLiteral("keyb"));
            delete owner; // its pad goes with it
        });
        QVERIFY(!Pad::accessKeyPad(owner, QStringLiteral("Name"), text, Pad::KeyPadText));
        QCOMPARE(text, QStringLiteral("a"));
    }

    void aRefusedTextStays()
    {
        CKeyPadDialog pad(QStringLiteral("Name"), QStringLiteral("a"), Pad::KeyPadText);
        pad.setCheck([](const QString& text) {
            return text == QLatin1String("ab") ? QString() : QStringLiteral("Not ") + text;
        });
        QString told;
        withNextModal([&](QWidget&) {
            withNextModal([&](QWidget& box) {
                told = dynamic_cast<CMessageBox&>(box).text();
                touch(box, QStringLiteral("ok"));
            });
            touch(pad, QStringLiteral("ok"));
            QCOMPARE(pad.text(), QStringLiteral("a"));
            QVERIFY(pad.isVisible());
            touch(pad, QStringLiteral("keyb"));
            touch(pad, QStringLiteral("ok"));
        });
        QCOMPARE(pad.exec(), int(QDialog::Accepted));
        QCOMPARE(told, QStringLiteral("Not a"));
        QCOMPARE(pad.text(), QStringLiteral("ab"));
    }

    void passwordIsHiddenUntilAskedFor()
    {
        CKeyPadDialog pad(QStringLiteral("Password"), QStringLiteral("tiger"), Pad::KeyPadPassword);
        show(pad);
        QVERIFY(textOf(pad)->displayText() != QStringLiteral("tiger"));
        touch(pad, QStringLiteral("showPassword"));
        QCOMPARE(textOf(pad)->displayText(), QStringLiteral("tiger"));
    }
};

std::unique_ptr<QObject> keyPadSuite()
{
    return std::make_unique<CKeyPadSuite>();
}

#include "keypadsuite.moc"
