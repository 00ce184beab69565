#include <QRegularExpression>

#include <cstring>
#include <random>

extern "C" std::size_t LLVMFuzzerMutate(unsigned char *data, std::size_t size, std::size_t most);

/// Exchanges words, elements and objects with those of earlier inputs, so that most results are still well-formed;
/// now and then changes whatever bytes.
extern "C" std::size_t LLVMFuzzerCustomMutator(unsigned char *data, std::size_t size, std::size_t most, unsigned seed)
{
    static struct { const QRegularExpression form; QStringList seen; } parts[] = {
        {QRegularExpression(QStringLiteral("[\\w.-]+")), {}},
        {QRegularExpression(QStringLiteral("<(\\w+)[^<>]*>[^<>]*</\\1>|\"[^\"]*\"|[\\d.-]+")), {}},
        {QRegularExpression(QStringLiteral("(?s)<(\\w+)(?=[ >]).*?</\\1>|\\{[^{}]*\\},?")), {}},
    };
    std::minstd_rand random(seed);
    const auto below = [&random](int limit) { return int(random() >> 4) % limit; };
    auto &[form, seen] = parts[below(3)];
    QString text = QString::fromLatin1(reinterpret_cast<char *>(data), int(size));
    const QRegularExpressionMatch part = form.match(text, below(text.size() + 1));
    if (!part.hasMatch() || below(5) == 0) {
        return LLVMFuzzerMutate(data, size, most);
    }
    seen.insert(below(seen.size() + 1), part.captured());
    const QString other = seen.size() > 5000 ? seen.takeAt(below(seen.size())) : seen.at(below(seen.size()));
    if (const int way = below(4)) { // instead of it, before it, or nothing
        text.replace(part.capturedStart(), way == 2 ? 0 : part.capturedLength(), way == 3 ? QString() : other);
    } else { // everywhere
        text.replace(part.captured(), other);
    }
    size = qMin(most, std::size_t(text.size()));
    std::memcpy(data, text.toLatin1().constData(), size);
    return size;
}
