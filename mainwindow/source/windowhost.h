#pragma once

class QWidget;

/** What the parts of the main window ask of it. Interface thread. */
class CWindowHost
{
public:
    /** Parent of boxes and pages. */
    virtual QWidget* dialogParent() = 0;
    /** Places a dialog, as large as it is, in the middle of the working area. */
    virtual void moveToWorkingAreaCenter(QWidget* widget) = 0;
    /** A test application has the screen above the bottom bar. */
    virtual bool isTestAppInFront() const = 0;
    /** A capture owns the USB drive. */
    virtual bool isCaptureRunning() const = 0;
    /** The process is about to end. */
    virtual bool isEnding() const = 0;

protected:
    ~CWindowHost() = default;
};
