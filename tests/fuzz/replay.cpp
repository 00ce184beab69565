// Runs a fuzz target with one file; or with all of a folder, what easily becomes of them, and what is too large for it.
#include <QDir>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size);
extern "C" std::size_t LLVMFuzzerCustomMutator(unsigned char *data, std::size_t size, std::size_t most, unsigned seed);

extern "C" std::size_t LLVMFuzzerMutate(unsigned char *data, std::size_t size, std::size_t)
{
    static unsigned bit = 0;
    data[bit / 8 % size] ^= uchar(1U << bit % 8);
    bit += 7919;
    return size;
}

static void run(const QByteArray &input)
{ LLVMFuzzerTestOneInput(reinterpret_cast<const unsigned char *>(input.constData()), std::size_t(input.size())); }

int main(int, char **argv)
{
    constexpr int kCuts = 4, kMutations = 8; // of each file
    const QFileInfo given(QFile::decodeName(argv[1]));
    const auto files = given.isDir() ? QDir(given.filePath()).entryInfoList(QDir::Files) : QFileInfoList{given};
    for (const QFileInfo &info : files) {
        QFile file(info.filePath());
        const QByteArray text = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        run(text);
        for (int i = 1; given.isDir() && !text.isEmpty() && i <= kCuts + kMutations; ++i) {
            QByteArray bytes = text + QByteArray(4096, '\0');
            auto *const data = reinterpret_cast<unsigned char *>(bytes.data());
            run(i <= kCuts ? text.left(text.size() * i / (kCuts + 1)) : bytes.left(int(
                LLVMFuzzerCustomMutator(data, std::size_t(text.size()), std::size_t(bytes.size()), unsigned(i)))));
        }
    }
    const QByteArray description = "<RegisterDescription>", settings = R"({"format": "trigger-settings", "version": 1, "nodes": [)";
    const struct { QByteArray begin, repeated; int times; QByteArray end; } endless[] = {
        {description, "<Group>", 100000, ""},
        {description + "<Integer Name=\"A\"><Value>", "99999999", 500000, "</Value></Integer></RegisterDescription>"},
        {description, "<Integer Name=\"A%1\"><Value>1</Value></Integer>", 10000, "</RegisterDescription>"},
        {description + "<SwissKnife Name=\"A\"><Formula>", "(", 200000, "1</Formula></SwissKnife></RegisterDescription>"},
        {settings, "[", 1000000, ""},
        {settings, R"({"name": "%1TriggerMode", "type": "enumeration", "value": "Hold"},)", 5000, R"({"name": "A", "type": "float", "value": 0}]})"},
    };
    for (int i = 0; given.isDir() && i < int(std::size(endless)); ++i) {
        QByteArray input = endless[i].begin;
        for (int number = 0; number < endless[i].times; ++number) {
            input += QByteArray(endless[i].repeated).replace("%1", QByteArray::number(number));
        }
        run(input + endless[i].end);
    }
}
