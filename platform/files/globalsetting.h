#pragma once

#include <cstddef>
#include <cstdint>

// The block of global settings that the instrument's processes share (System V shared memory, made by another
// process): 1024 bytes, native little-endian. The shell writes single fields and never initialises the block.
// The simulator's platform keeps a table of offsets of its own on purpose: it stands for the other processes,
// and a slip here shows against it.

/** Where the block is found: ftok() of this file and number. */
constexpr char GlobalSettingKeyFile[] = "/usr/local/arvo/share/res/keys/global";
constexpr int GlobalSettingProject = 86;

enum unittype_t : std::int32_t { unit_metric = 0, unit_english = 1 };

enum uistyle_t : std::int32_t { uistyle_international = 0, uistyle_usa = 1 };

struct stArvo_time_value
{
    std::int32_t seconds;
    std::int32_t microseconds;
};

struct stArvo_screen_setting
{
    std::int32_t bl_off_battery_on; ///< 1: the backlight goes off after bl_off_battery_time
    std::int32_t bl_off_battery_time; ///< seconds
    std::int32_t bl_off_AC_on;
    std::int32_t bl_off_AC_time; ///< seconds
    std::int32_t br_level_battery;
    std::int32_t br_level_AC;
};

struct stArvo_global_orlospec
{
    std::int32_t initdef_appindex;
    std::int32_t manport_bootconnect;
    std::int32_t clock_source[8]; ///< 1 internal, 2 GPS, 3 atomic, 4 atomic 10 MHz; six are used
    std::uint8_t padd_data[472];
};

struct stArvo_global_setting
{
    std::uint32_t magic_mark; ///< neither written nor checked by the shell
    unittype_t unittype;
    std::int32_t audible_alarm;
    std::int32_t show_password;
    char fname_prefix[64]; ///< UTF-8, NUL-terminated
    std::int32_t profdel_type; ///< 1 prompt, 0 otherwise; likewise the next two
    std::int32_t profsave_type;
    std::int32_t rsltsave_type;
    std::int32_t advanced_save;
    stArvo_screen_setting screen_setting;
    std::int32_t save_screen_enable;
    std::int32_t save_screen_compress; ///< 7 high, 3 middle, 0 none
    std::int32_t save_screen_curnum;
    std::int32_t save_screen_maxnum;
    std::int32_t lock_screen_local;
    std::int32_t lock_screen_remote;
    stArvo_time_value stamp_evin_local;
    stArvo_time_value stamp_evin_remote;
    std::int32_t backlight_off_force;
    std::uint8_t resv_bytes1[8];
    std::uint32_t vled_counter;
    std::uint8_t resv_bytes2[8];
    std::int32_t browser_pid;
    std::int32_t browser_app;
    std::int32_t browser_x;
    std::int32_t browser_y;
    std::int32_t browser_w;
    std::int32_t browser_h;
    std::int32_t flag_todset_lock;
    std::int32_t flag_tzset_lock;
    uistyle_t ui_style;
    std::uint8_t padd_data[292];
    stArvo_global_orlospec spec_data;
};

#define ASSERT_FIELD(FIELD, OFFSET)                                                                          \
    static_assert(offsetof(stArvo_global_setting, FIELD) == (OFFSET), "other processes read " #FIELD)

ASSERT_FIELD(magic_mark, 0);
ASSERT_FIELD(unittype, 4);
ASSERT_FIELD(audible_alarm, 8);
ASSERT_FIELD(show_password, 12);
ASSERT_FIELD(fname_prefix, 16);
ASSERT_FIELD(profdel_type, 80);
ASSERT_FIELD(profsave_type, 84);
ASSERT_FIELD(rsltsave_type, 88);
ASSERT_FIELD(advanced_save, 92);
ASSERT_FIELD(screen_setting, 96);
ASSERT_FIELD(screen_setting.bl_off_battery_time, 100);
ASSERT_FIELD(screen_setting.bl_off_AC_on, 104);
ASSERT_FIELD(screen_setting.bl_off_AC_time, 108);
ASSERT_FIELD(screen_setting.br_level_battery, 112);
ASSERT_FIELD(screen_setting.br_level_AC, 116);
ASSERT_FIELD(save_screen_enable, 120);
ASSERT_FIELD(save_screen_compress, 124);
ASSERT_FIELD(save_screen_curnum, 128);
ASSERT_FIELD(save_screen_maxnum, 132);
ASSERT_FIELD(lock_screen_local, 136);
ASSERT_FIELD(lock_screen_remote, 140);
ASSERT_FIELD(stamp_evin_local, 144);
ASSERT_FIELD(stamp_evin_remote, 152);
ASSERT_FIELD(backlight_off_force, 160);
ASSERT_FIELD(resv_bytes1, 164);
ASSERT_FIELD(vled_counter, 172);
ASSERT_FIELD(resv_bytes2, 176);
ASSERT_FIELD(browser_pid, 184);
ASSERT_FIELD(browser_h, 204);
ASSERT_FIELD(flag_todset_lock, 208);
ASSERT_FIELD(flag_tzset_lock, 212);
ASSERT_FIELD(ui_style, 216);
ASSERT_FIELD(padd_data, 220);
ASSERT_FIELD(spec_data, 512);
ASSERT_FIELD(spec_data.manport_bootconnect, 516);
ASSERT_FIELD(spec_data.clock_source, 520);
static_assert(sizeof(stArvo_global_setting) == 1024, "other processes read this block");

#undef ASSERT_FIELD
