// The translations as they are kept in the tree.
#pragma once

#include <QDir>
#include <QFile>
#include <QXmlStreamReader>

/// One text of a translation file.
struct TranslatedText {
    QString context;
    QString source;
    QStringList translations; ///< one, or one for each plural form
    bool finished = true;
    bool plural = false;
};

/// All texts of the file translations/corvalis_LANGUAGE.ts; none where it cannot be read.
inline QList<TranslatedText> textsOfLanguage(const QString &language)
{
    QFile file(QStringLiteral(TRANSLATIONS "/corvalis_%1.ts").arg(language));
    QList<TranslatedText> texts;
    if (!file.open(QIODevice::ReadOnly))
        return texts;
    QXmlStreamReader xml(&file);
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const auto name = xml.name();
        if (name == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (name == QLatin1String("message")) {
            const bool plural = xml.attributes().hasAttribute(QLatin1String("numerus"));
            texts.append({ context, {}, {}, true, plural });
        } else if (name == QLatin1String("source")) {
            texts.last().source = xml.readElementText();
        } else if (name == QLatin1String("translation")) {
            texts.last().finished = !xml.attributes().hasAttribute(QLatin1String("type"));
            if (!texts.last().plural)
                texts.last().translations.append(xml.readElementText());
        } else if (name == QLatin1String("numerusform")) {
            texts.last().translations.append(xml.readElementText());
        }
    }
    if (!xml.hasError())
        return texts;
    qWarning("%s: %s", qPrintable(file.fileName()), qPrintable(xml.errorString()));
    return {};
}

/// The languages that there are translations into, English with its plurals among them.
inline QStringList translatedLanguages()
{
    QStringList languages;
    for (const QString &name : QDir(QStringLiteral(TRANSLATIONS)).entryList({ QStringLiteral("*.ts") }))
        languages.append(name.sliced(9).chopped(3));
    return languages;
}
