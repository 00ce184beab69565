#pragma once

#include <QString>

/// Texts, as tests are full of them; also with a NUL.
inline QString operator""_s(const char *text, std::size_t size)
{
    return QString::fromUtf8(text, int(size));
}
