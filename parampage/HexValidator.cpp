#include "HexValidator.h"

#include <QRegularExpression>

HexValidator::HexValidator(int maximum, QObject *parent)
    : QValidator(parent)
    , m_maximum(maximum)
{}

HexValidator::~HexValidator() = default;

QValidator::State HexValidator::validate(QString &input, int &) const
{
    if (input.toUtf8().size() > m_maximum) {
        return Invalid;
    }
    static const QRegularExpression digits(QStringLiteral("^[A-Fa-f0-9]*$"));
    return digits.match(input).hasMatch() ? Acceptable : Invalid;
}
