#pragma once

/** Languages of the user interface. LANGUAGE_BEGIN and LANGUAGE_END bound the range and are no languages. */
enum LanguageCode {
    LANGUAGE_BEGIN = 65000,
    LANGUAGE_ENGLISH = 65001,
    LANGUAGE_CHINESE = 65002,
    LANGUAGE_GERMAN = 65003,
    LANGUAGE_FRENCH = 65004,
    LANGUAGE_JAPANESE = 65005,
    LANGUAGE_HUNGARIAN = 65006,
    LANGUAGE_RUSSIAN = 65007,
    LANGUAGE_END = 65008
};
