#pragma once

#include <QByteArray>

#include <cstddef>
#include <cstdint>
#include <vector>

// The settings of the global block that a unit keeps over power-off, and the file that keeps them: an XML
// element whose attributes are the fields' names, with words where a field means one of several things.

constexpr std::size_t BlockSize = 1024;

struct Word
{
    std::int32_t value;
    const char* text;
};

/** One field of the block. */
struct Field
{
    const char* name;
    std::size_t offset; ///< bytes
    std::int32_t factory; ///< before anything was kept
    const std::vector<Word>* words; ///< null for a number; any other text means the first
};

/** All but the text. */
extern const std::vector<Field> Fields;

constexpr char PrefixName[] = "fname_prefix";
constexpr std::size_t PrefixOffset = 16;
constexpr std::size_t PrefixSize = 64;

/** Fills the block with what a fresh unit has. */
void fillFactory(char* block);

/** Puts what a file's attributes name into the block; false when it is no such file, and nothing is changed.
 */
bool readConfiguration(const QByteArray& file, char* block);

/** The file for the block's content. */
QByteArray writeConfiguration(const char* block);
