#pragma once

#include <QMetaType>
#include <QString>

// Status records of the devices: plain values, sent once a second as queued signal arguments. Receivers
// decide what changed. Field names are part of the interface and stay as they are spelled.

/** Makes the records known by name, so that signals carry them from thread to thread; before the first
 * connection. */
void registerStatusTypes();

enum SystemGPSStatus { SysStsGPSOnSync = 0, SysStsGPSOnPoor = 1, SysStsGPSNoSync = 2, SysStsGPSOff = 3 };

enum SystemDataCardStatus {
    SysStsDataCardConnected = 0,
    SysStsDataCardNotConnected = 1,
    SysStsDataCardOff = 2
};

struct PowerStatus
{
    bool bIsBat = false; ///< runs from the battery
    bool bNotBatAndNotAC = false; ///< neither battery nor external power detected
    int fullCap = 0; ///< capacities in one unit of the battery's choice
    int remainCap = 0;
    int remainTime = 0; ///< minutes left on battery
    int toFullTime = 0; ///< minutes until fully charged
};

struct BluetoothStatus
{
    bool bIsTurnOn = false;
    bool bIsDiscovery = false;
    bool bIsPlugged = false;
    bool bIsPaired = false;
};

constexpr int UnknownBlocks = -1; ///< of a storage that cannot be measured

struct StorageStatus
{
    bool bIsUSBDisk = false; ///< the record concerns the USB disk
    bool bIsPlugged = false; ///< a USB disk is plugged in
    bool bIsMounted = false; ///< the USB disk is mounted
    int diskUsed = 0; ///< internal storage, 1 KiB blocks or UnknownBlocks
    int diskAvail = 0;
    bool bIsUSBDPlugged = false; ///< USB drive present
    int USBDUsed = 0; ///< USB drive, 4 KiB blocks or UnknownBlocks
    int USBDAvail = 0;
};

struct WIFIStatus
{
    bool bIsPlugged = false; ///< a wireless adapter answers
    bool bIsConnected = false; ///< associated with an access point
    int signalStrength = 0; ///< link quality as reported (the number before "/")
    QString bssid; ///< the access point's hardware address
    QString chanel;
    QString encyption;
    QString mode; ///< operating mode as reported
};

struct OPMStatus
{
    bool bIsPlugged = false; ///< an optical power meter is attached
};

struct GPSStatus
{
    SystemGPSStatus m_eGPSStatus = SysStsGPSOff;
};

struct DataCardStatus
{
    SystemDataCardStatus m_eDataCardStatus = SysStsDataCardOff;
};

Q_DECLARE_METATYPE(PowerStatus)
Q_DECLARE_METATYPE(BluetoothStatus)
Q_DECLARE_METATYPE(StorageStatus)
Q_DECLARE_METATYPE(WIFIStatus)
Q_DECLARE_METATYPE(OPMStatus)
Q_DECLARE_METATYPE(GPSStatus)
Q_DECLARE_METATYPE(DataCardStatus)
