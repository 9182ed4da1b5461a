#pragma once

/** Values of the SaveScreenCompressLevel setting. */
enum SaveScreenCompressLevel { LevelHigh = 65000, LevelMid = 65001, NoCompress = 65002 };
