#pragma once

#include <QObject>

/**
 * A machine too busy to hand on X events together, for as long as this lives: between the release and the
 * press of a repeated key the thread that reads them does not get the processor until the release has been
 * handled. Qt then does not see that the two belong together, and its auto-repeat flag is missing.
 *
 * It counts what it did to the real keys. Interface thread; one at a time.
 */
class CBusyMachine : public QObject
{
    Q_OBJECT

public:
    CBusyMachine();
    ~CBusyMachine() override;

    /** Repetitions of a held key that came without the flag. */
    int unflaggedRepetitions() const { return m_unflagged; }

    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    unsigned long m_releaseTime = 0;
    int m_unflagged = 0;
};
