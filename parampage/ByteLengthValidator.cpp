#include "ByteLengthValidator.h"

ByteLengthValidator::ByteLengthValidator(int maximum, QObject *parent)
    : QValidator(parent)
    , m_maximum(maximum)
{}

ByteLengthValidator::~ByteLengthValidator() = default;

QValidator::State ByteLengthValidator::validate(QString &input, int &) const
{
    return input.toUtf8().size() > m_maximum ? Invalid : Acceptable;
}
