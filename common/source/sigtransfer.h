#pragma once

#include "appinfo.h"
#include "devicestatus.h"

#include <QObject>

/**
 * The signal relay: carries status and navigation signals between parts of the shell that do not know each
 * other. Parts that produce information emit through it, parts that show it connect to it. It keeps no state.
 *
 * One per process, reached as g_pSigTransfer; the main window creates it before anything that connects to it,
 * and owns it. Interface thread.
 */
class CSigTransfer : public QObject
{
    Q_OBJECT

public:
    explicit CSigTransfer(QObject* parent = nullptr);
    ~CSigTransfer() override;

signals:
    void currentAppChanged(int index);
    void appStateChanged(AppInfo ai);
    void currentUtilChanged(int utilID);
    void queryPowerInfo();
    void queryStorageInfo();
    void queryBTInfo();
    void lockStateChanged(bool bLock);
    void powerStatusChanged(PowerStatus powerStat);
    void bluetoothStatusChanged(BluetoothStatus bthStat);
    void storageStatusChanged(StorageStatus storeStat);
    void wifiStatusChanged(WIFIStatus wifiStat);
    void opmStatusChanged(OPMStatus opmStat);
    void gpsStatusChanged(GPSStatus gpsStat);
    void dataCardStatusChanged(DataCardStatus dataCardStat);
};

/** The process's relay; null before the main window made it. */
extern CSigTransfer* g_pSigTransfer;
