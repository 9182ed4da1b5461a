#include "langswitchserv.h"

#include "buslink.h"

namespace serv {

bool CLangSwitchServ::SwitchLanguage(int language)
{
    return CBusLink::systemBus().call("org.arvo.Platform.Language", "SwitchLanguage", language, nullptr);
}

} // namespace serv
