#include "devicestatus.h"

void registerStatusTypes()
{
    qRegisterMetaType<PowerStatus>("PowerStatus");
    qRegisterMetaType<BluetoothStatus>("BluetoothStatus");
    qRegisterMetaType<StorageStatus>("StorageStatus");
    qRegisterMetaType<WIFIStatus>("WIFIStatus");
    qRegisterMetaType<OPMStatus>("OPMStatus");
    qRegisterMetaType<GPSStatus>("GPSStatus");
    qRegisterMetaType<DataCardStatus>("DataCardStatus");
}
