#pragma once

#include <QTranslator>

/// Puts "~" before every text, so that a translated text can be told from its source.
class TildeTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *source, const char *, int) const override
    {
        return source[0] ? u'~' + QString::fromUtf8(source) : QString();
    }
};
