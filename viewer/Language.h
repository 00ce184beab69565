#pragma once

#include <QLocale>
#include <QStringList>
#include <QTranslator>

/// The language of the whole program: of its own texts, the panel's and Qt's. A change reaches every window at once.
class Language
{
public:
    /// The languages there are, by their codes: "en", in which the sources are written, and those with a translation.
    static QStringList codes();
    /// What its speakers call it.
    static QString name(const QString &code);

    ~Language();

    /// Speaks the language of that locale, or English where there is no translation.
    void speak(const QLocale &locale);
    /// The code of the language spoken.
    QString code() const;

private:
    QTranslator m_texts;
    QTranslator m_qtTexts;
};
