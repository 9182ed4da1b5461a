#include "sigtransfer.h"

CSigTransfer* g_pSigTransfer = nullptr;

CSigTransfer::CSigTransfer(QObject* parent)
    : QObject(parent)
{ }

CSigTransfer::~CSigTransfer()
{
    // Late emitters find no relay rather than a dead one.
    if (g_pSigTransfer == this)
        g_pSigTransfer = nullptr;
}
