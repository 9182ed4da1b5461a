#pragma once

#include "testfiles.h"

#include <QDomDocument>

inline const QString Settings = "/home/root/.zentra/zentra-settings.xml"_s;
inline const QString Desktop = "/home/root/.zentra/zentra-desktop.xml"_s;

inline QByteArray builtIn(const char* name)
{
    return readFile(qEnvironmentVariable("INSTRUMENT_SOURCE") + "/resources/conf/"_s + QLatin1String(name));
}

// Both files as a new unit has them.
inline void resetConfFiles()
{
    for (const QString& path : {Settings, Desktop}) // may be a link or a pipe
        QFile::remove(path);
    writeFile(Settings, builtIn("zentra-settings.xml"));
    writeFile(Desktop, builtIn("zentra-desktop.xml"));
}

// All elements in document order: path, then attributes by name. The same for equal documents.
inline void describe(const QDomElement& element, const QString& path, QStringList& lines)
{
    QStringList attributes;
    for (int index = 0; index < element.attributes().count(); ++index) {
        const QDomAttr node = element.attributes().item(index).toAttr();
        attributes << node.name() + "="_s + node.value();
    }
    attributes.sort();
    const QString name = path + "/"_s + element.tagName();
    lines << name + " "_s + attributes.join(" "_s);
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
        describe(child, name, lines);
}

inline QStringList elements(const QByteArray& content)
{
    QDomDocument document;
    if (!document.setContent(content))
        return {"not well-formed"_s};
    QStringList lines;
    describe(document.documentElement(), QString(), lines);
    return lines;
}
