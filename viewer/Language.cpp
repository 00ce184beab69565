#include "Language.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>

namespace {

const QString &folder()
{
    static const QString inTheLibrary = QStringLiteral(":/VyTriggerConfigWdg");
    return inTheLibrary;
}

bool load(QTranslator &texts, const QLocale &locale)
{
    return texts.load(locale, QStringLiteral("trigger"), QStringLiteral("_"), folder());
}

} // namespace

QStringList Language::codes()
{
    QStringList codes{QStringLiteral("en")};
    const QStringList files = QDir(folder()).entryList({QStringLiteral("trigger_*.qm")}, QDir::Files, QDir::Name);
    for (const QString &file : files) {
        codes.append(file.section(QLatin1Char('_'), 1).section(QLatin1Char('.'), 0, 0));
    }
    return codes;
}

QString Language::name(const QString &code)
{
    // Not nativeLanguageName(), which tells American English from others, and the Spanish of Spain.
    //: The name of the language of this file, in that language.
    const char *const name = QT_TRANSLATE_NOOP("Language", "English");
    QTranslator texts;
    return load(texts, QLocale(code)) ? texts.translate("Language", name) : QString::fromLatin1(name);
}

Language::~Language() = default;

void Language::speak(const QLocale &locale)
{
    QCoreApplication::removeTranslator(&m_texts);
    QCoreApplication::removeTranslator(&m_qtTexts);
    // The sources are in English: a file of that name there is not.
    const bool isEnglish = locale.language() == QLocale::English;
    if (isEnglish || !load(m_texts, locale)) {
        m_texts.load(QString());
        return;
    }
    QCoreApplication::installTranslator(&m_texts);
    if (m_qtTexts.load(locale, QStringLiteral("qtbase"), QStringLiteral("_"),
                       QLibraryInfo::location(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&m_qtTexts);
    }
}

QString Language::code() const
{
    return m_texts.isEmpty() ? QStringLiteral("en") : m_texts.language();
}
