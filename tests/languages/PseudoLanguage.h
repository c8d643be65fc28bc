// A language that nobody speaks: each text in brackets, longer by 40 per cent, and with accents. What is shown
// without brackets was not translated, what is cut has no room for another language, and brackets in brackets tell of
// a sentence that was put together from pieces.
#pragma once

#include "TranslationFile.h"

#include <QSet>
#include <QTranslator>

/// Translates what a translation file lists, and all that the toolkit says itself.
class PseudoLanguage : public QTranslator {
public:
    static constexpr char16_t opening = u'⟦';
    static constexpr char16_t closing = u'⟧';

    /// The sources are those of `language`, which is complete.
    explicit PseudoLanguage(const QString &language)
    {
        for (const TranslatedText &text : textsOfLanguage(language)) {
            m_contexts.insert(text.context);
            m_sources.insert({ text.context, text.source });
        }
    }

    bool isEmpty() const override { return m_sources.isEmpty(); }

    QString translate(const char *context, const char *source, const char *, int) const override
    {
        const QString where = QString::fromLatin1(context);
        const QString text = QString::fromUtf8(source);
        const bool ours = m_contexts.contains(where);
        // Names of keys stand in the texts of menus, and the direction is no text.
        const bool shown =
            where != QLatin1String("QShortcut") && text != QLatin1String("QT_LAYOUT_DIRECTION");
        const bool known = ours ? m_sources.contains({ where, text }) : where.startsWith(QLatin1Char('Q'));
        return known && shown ? disguised(text) : QString();
    }

    /// The filling comes first, so that the text ends as the source does.
    static QString disguised(const QString &text)
    {
        QString filling;
        for (qsizetype i = 0; i < qMax<qsizetype>(2, text.size() * 2 / 5); ++i)
            filling += i % 8 == 7 ? u' ' : u'~';
        return opening + filling + u' ' + accented(text) + closing;
    }

private:
    /// All but placeholders and mnemonics, which have to stay.
    static QString accented(const QString &text)
    {
        static const QString plain = QStringLiteral("AEIOUaeioucny");
        static const QString marked = QStringLiteral("ÅÉÎØÜåéîøüçñý");
        QString result;
        for (qsizetype i = 0; i < text.size(); ++i) {
            const QChar before = i > 0 ? text[i - 1] : QChar();
            const bool kept =
                before == u'&' || before == u'%' || (before == u'L' && i > 1 && text[i - 2] == u'%');
            const qsizetype at = kept ? -1 : plain.indexOf(text[i]);
            result += at < 0 ? text[i] : marked[at];
        }
        return result;
    }

    QSet<QString> m_contexts;
    QSet<std::pair<QString, QString>> m_sources;
};
