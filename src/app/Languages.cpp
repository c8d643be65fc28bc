#include "app/Languages.h"

#include <QDir>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// Installs what `translator` was loaded with, if it was. The application owns it then.
void install(std::unique_ptr<QTranslator> translator, bool loaded)
{
    if (!loaded)
        return;
    translator->setParent(QCoreApplication::instance());
    QCoreApplication::installTranslator(translator.release());
}

} // namespace

QString languages::folder()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + u"/../share/corvalis/translations"_s);
}

void languages::speak(const QLocale &locale, const QString &translations)
{
    auto english = std::make_unique<QTranslator>();
    const bool hasEnglish = english->load(u"corvalis_en"_s, translations);
    install(std::move(english), hasEnglish);
    auto own = std::make_unique<QTranslator>();
    if (!own->load(locale, u"corvalis"_s, u"_"_s, translations) || own->filePath().endsWith("_en.qm"_L1))
        return;
    const QLocale spoken(own->language());
    auto toolkit = std::make_unique<QTranslator>();
    const bool hasToolkit =
        toolkit->load(spoken, u"qtbase"_s, u"_"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    install(std::move(toolkit), hasToolkit);
    install(std::move(own), true);
    // Said outright, as the toolkit's translations, which would say it too, may not be installed. From left to right
    // is what it takes without being told, or the other way round with its option -reverse.
    if (spoken.textDirection() == Qt::RightToLeft)
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
}
