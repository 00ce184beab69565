#pragma once

#include <QValidator>

/// Accepts any text of at most `maximum` bytes of UTF-8; anything longer is Invalid, never Intermediate.
class ByteLengthValidator : public QValidator
{
public:
    ByteLengthValidator(int maximum, QObject *parent);
    ~ByteLengthValidator() override;

    State validate(QString &input, int &pos) const override;

private:
    const int m_maximum; // bytes
};
