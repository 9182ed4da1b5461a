#include "backlightpage.h"

#include "backlightgroup.h"

namespace {

using S = CSystemSettings;

constexpr CBacklightGroup::Source Battery{QT_TRANSLATE_NOOP("CBacklightGroup", "On battery"),
    S::BatteryBacklightEnabled, S::BatteryBacklightTime, S::BatteryBrightness, S::BatteryBacklightChanged};
constexpr CBacklightGroup::Source External{QT_TRANSLATE_NOOP("CBacklightGroup", "On external power"),
    S::ACBacklightEnabled, S::ACBacklightTime, S::ACBrightness, S::ACBacklightChanged};

} // namespace

CBacklightPage::CBacklightPage(QWidget* parent)
    : CWidget(parent)
{
    auto* battery = new CBacklightGroup(Battery, this);
    battery->setObjectName(QStringLiteral("battery"));
    battery->setGeometry(16, 13, 608, 182);
    auto* external = new CBacklightGroup(External, this);
    external->setObjectName(QStringLiteral("external"));
    external->setGeometry(16, 205, 608, 182);
}
