#include "lastconfiguration.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>
#include <cstring>

namespace {

const std::vector<Word> Switch = {{0, "off"}, {1, "on"}};
const std::vector<Word> Force = {{0, "force"}, {1, "prompt"}};
const std::vector<Word> Manual = {{0, "manual"}, {1, "prompt"}};
const std::vector<Word> Compress = {{3, "mid"}, {7, "high"}, {0, "nocompress"}};
const std::vector<Word> Unit = {{0, "metric"}, {1, "english"}};
const std::vector<Word> Style = {{0, "international"}, {1, "usa"}};
const std::vector<Word> Clock = {{1, "tcxo"}, {2, "gps"}, {3, "atomic"}, {4, "atomic_10m"}};

std::int32_t numberIn(const Field& field, const QString& text)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    // A switch may stand there as a number, and a number as a switch.
    if (isNumber && (!field.words || field.words == &Switch))
        return field.words ? number != 0 : number;
    const std::vector<Word>& words = field.words ? *field.words : Switch;
    const auto found = std::find_if(words.begin(), words.end(), [&text](const Word& word) {
        return text.compare(QLatin1String(word.text), Qt::CaseInsensitive) == 0;
    });
    return found == words.end() ? words.front().value : found->value;
}

QString textOf(const Field& field, std::int32_t value)
{
    if (!field.words)
        return QString::number(value);
    const auto found = std::find_if(
        field.words->begin(), field.words->end(), [value](const Word& word) { return word.value == value; });
    return QLatin1String(found == field.words->end() ? field.words->front().text : found->text);
}

void putNumber(char* block, const Field& field, std::int32_t value)
{
    std::memcpy(block + field.offset, &value, sizeof value);
}

void putPrefix(char* block, const QString& text)
{
    QString cut = text;
    while (cut.toUtf8().size() >= int(PrefixSize))
        cut.chop(1);
    const QByteArray bytes = cut.toUtf8();
    std::memset(block + PrefixOffset, 0, PrefixSize);
    std::memcpy(block + PrefixOffset, bytes.constData(), std::size_t(bytes.size()));
}

/** Without what XML can not carry. */
QString prefixOf(const char* block)
{
    const char* text = block + PrefixOffset;
    QString prefix;
    for (const QChar sign : QString::fromUtf8(text, int(qstrnlen(text, PrefixSize)))) {
        if (sign >= QLatin1Char(' ') && sign.unicode() < 0xFFFE)
            prefix += sign;
    }
    return prefix;
}

} // namespace

const std::vector<Field> Fields = {
    {"unittype", 4, 0, &Unit},
    {"audible_alarm", 8, 0, &Switch},
    {"show_password", 12, 1, &Switch},
    {"profdel_type", 80, 0, &Force},
    {"profsave_type", 84, 0, &Force},
    {"rsltsave_type", 88, 0, &Manual},
    {"advanced_save", 92, 0, &Switch},
    {"bl_off_battery_on", 96, 0, &Switch},
    {"bl_off_battery_time", 100, 10, nullptr},
    {"bl_off_AC_on", 104, 0, &Switch},
    {"bl_off_AC_time", 108, 60, nullptr},
    {"br_level_battery", 112, 50, nullptr},
    {"br_level_AC", 116, 63, nullptr},
    {"save_screen_enable", 120, 1, &Switch},
    {"save_screen_compress", 124, 3, &Compress},
    {"save_screen_maxnum", 132, 50, nullptr},
    {"ui_style", 216, 0, &Style},
    {"initdef_appindex", 512, 0, nullptr},
    {"manport_bootconnect", 516, 0, &Switch},
    {"clock_source_0", 520, 1, &Clock},
    {"clock_source_1", 524, 1, &Clock},
    {"clock_source_2", 528, 1, &Clock},
    {"clock_source_3", 532, 1, &Clock},
    {"clock_source_4", 536, 1, &Clock},
    {"clock_source_5", 540, 1, &Clock},
};

void fillFactory(char* block)
{
    for (const Field& field : Fields)
        putNumber(block, field, field.factory);
}

bool readConfiguration(const QByteArray& file, char* block)
{
    QByteArray filled(block, int(BlockSize));
    QXmlStreamReader reader(file);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QXmlStreamAttributes attributes = reader.attributes();
        for (const Field& field : Fields) {
            if (attributes.hasAttribute(QLatin1String(field.name)))
                putNumber(filled.data(), field,
                    numberIn(field, attributes.value(QLatin1String(field.name)).toString()));
        }
        if (attributes.hasAttribute(QLatin1String(PrefixName)))
            putPrefix(filled.data(), attributes.value(QLatin1String(PrefixName)).toString());
    }
    if (reader.hasError())
        return false;
    std::memcpy(block, filled.constData(), BlockSize);
    return true;
}

QByteArray writeConfiguration(const char* block)
{
    QByteArray file;
    QXmlStreamWriter writer(&file);
    writer.writeStartDocument();
    writer.writeStartElement(QStringLiteral("arvoglobal-setting"));
    for (const Field& field : Fields) {
        std::int32_t value = 0;
        std::memcpy(&value, block + field.offset, sizeof value);
        writer.writeAttribute(QLatin1String(field.name), textOf(field, value));
    }
    writer.writeAttribute(QLatin1String(PrefixName), prefixOf(block));
    writer.writeEndElement();
    writer.writeEndDocument();
    return file;
}
