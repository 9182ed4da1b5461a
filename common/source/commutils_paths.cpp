#include "commutils.h"

QString CUICommUtils::getConfPath()
{
    return QStringLiteral("/home/root/.zentra");
}

QString CUICommUtils::getWidgetStyleFileName()
{
    return getConfPath() + QStringLiteral("/widget-style.xml");
}

QString CUICommUtils::getTestModeProfName()
{
    return QStringLiteral(":/conf/test_mode_profile.xml");
}

QString CUICommUtils::getPipeName(PipeType type)
{
    switch (type) {
    case UI2Main:
        return QStringLiteral("/tmp/var/dev/ui-to-main");
    case Main2UI:
        return QStringLiteral("/tmp/var/dev/main-to-ui");
    }
    return {};
}

QString CUICommUtils::getVNCSessionMarkFileDirPath()
{
    return QStringLiteral("/tmp/var/lib/vnc");
}

QString CUICommUtils::getVNCSessionMarkFileName()
{
    return getVNCSessionMarkFileDirPath() + QStringLiteral("/srv-sessions");
}

QString CUICommUtils::getVNCPasswdFileName()
{
    return QStringLiteral("/tmp/var/etc/ra-passwd");
}

QString CUICommUtils::getCLIProfilePath()
{
    return QStringLiteral("/tmp/var/etc/cli-prof");
}

QString CUICommUtils::getDefaultCLIProfileName()
{
    return QStringLiteral("cli-passwd");
}

QString CUICommUtils::getCurrentCLIProfileName()
{
    return getCLIProfilePath() + QStringLiteral("/cli-pass-conf");
}

QString CUICommUtils::getHelpIndexFileName()
{
    return QStringLiteral("/usr/local/share/en/helphome.html");
}

QString CUICommUtils::getTSCalFileName()
{
    return QStringLiteral("/tmp/var/etc/pointercal");
}

QString CUICommUtils::getLockScreenMarkFileName()
{
    return QStringLiteral("/tmp/screen-locked.mark");
}

QString CUICommUtils::getSaveScreenMarkFileName()
{
    return QStringLiteral("/tmp/save-screen.mark");
}
