#pragma once

#include "systemsettings.h"

#include <QVariant>
#include <QVector>

/** One default: the value a setting has until the stored attributes say otherwise. */
struct DefaultSetting
{
    CSystemSettings::SystemAttribute attribute;
    QVariant value;
};

/** The shell's defaults in the order they are set. */
const QVector<DefaultSetting>& defaultSettings();
