#include "sysfailureserv.h"

#include "buslink.h"

namespace serv {

bool CSysFailureServ::QueryLatestSysFailure(QString& text)
{
    text.clear();
    return CBusLink::systemBus().call(
        "org.arvo.Platform.SysFailure", "QueryLatestSysFailure", std::nullopt, &text);
}

} // namespace serv
