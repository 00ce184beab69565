#pragma once

#include <QValidator>

/// Accepts hexadecimal digits only, at most `maximum` of them, odd numbers included; anything else is
/// Invalid, never Intermediate.
class HexValidator : public QValidator
{
public:
    HexValidator(int maximum, QObject *parent);
    ~HexValidator() override;

    State validate(QString &input, int &pos) const override;

private:
    const int m_maximum; // bytes, which for digits are characters
};
