#include "Life.h"

#include "Meter.h"
#include "Subject.h"

#include "tests/TildeTranslator.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QKeyEvent>

#include <malloc.h>
#include <unistd.h>

namespace {

/// Until everything that was posted is done, and painted.
void settle()
{
    for (int round = 0; round < 4; ++round) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void press(QWidget *editor, Qt::Key key, const QString &text)
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(editor, &event);
    }
}

template <typename Editor>
Editor *editor(const QWidget *form, const char *node)
{
    return form->findChild<QWidget *>(QString::fromLatin1(node))->findChild<Editor *>();
}

quint64 residentBytes()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    const QByteArray pages = file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').value(1) : QByteArray();
    return pages.toULongLong() * quint64(sysconf(_SC_PAGESIZE));
}

quint64 heapBytes()
{
    const struct mallinfo2 heap = mallinfo2();
    return heap.uordblks + heap.hblkhd;
}

} // namespace

void live(const Subject &subject, Meter &meter, const QString &prefix)
{
    std::unique_ptr<QWidget> form;
    const auto phase = [&](const char *name, const std::function<void()> &call) {
        const QString full = prefix + QString::fromLatin1(name);
        meter.begin();
        call();
        meter.end(full + QStringLiteral("|call"));
        meter.begin();
        settle();
        meter.end(full + QStringLiteral("|rest"));
    };
    phase("construct", [&] { form = subject.build(); });
    phase("show", [&] { form->show(); });
    phase("page, unchanged", [&] { subject.refresh(false); });
    phase("all pages, unchanged", [&] { subject.refresh(true); });
    if (subject.changeValues) {
        subject.changeValues();
        phase("page, changed", [&] { subject.refresh(false); });
        subject.refresh(true);
        settle();
        subject.changeValues();
        phase("all pages, changed", [&] { subject.refresh(true); });
    }

    auto *const source = editor<QComboBox>(form.get(), "InputTriggerSource");
    source->setCurrentText(QStringLiteral("TcpServer"));
    if (subject.followSource) {
        subject.followSource(true);
    }
    settle();
    phase("source", [&] { source->setCurrentText(QStringLiteral("RS-232")); });
    if (subject.followSource) {
        subject.followSource(false);
    }
    settle();

    phase("hide and show", [&] {
        form->hide();
        form->show();
    });
    TildeTranslator translator;
    phase("language", [&] { QCoreApplication::installTranslator(&translator); });
    QCoreApplication::removeTranslator(&translator);
    settle();

    auto *const number = editor<QAbstractSpinBox>(form.get(), subject.number);
    number->setFocus();
    settle();
    phase("edit", [&] {
        press(number, Qt::Key_7, QStringLiteral("7"));
        press(number, Qt::Key_Return, QStringLiteral("\r"));
    });
    phase("destroy", [&] { form.reset(); });
}

void measureMemory(const Subject &subject)
{
    constexpr int kForms = 10;
    std::vector<std::unique_ptr<QWidget>> forms;
    quint64 heap = 0;
    quint64 resident = 0;
    for (int i = 0; i <= kForms; ++i) {
        forms.push_back(subject.build());
        forms.back()->show();
        settle();
        if (i == 0) { // what all share
            heap = heapBytes();
            resident = residentBytes();
        }
    }
    Meter::print(QStringLiteral("heap"), {(heapBytes() - heap) / kForms});
    Meter::print(QStringLiteral("resident"), {(residentBytes() - resident) / kForms});
    quint64 lists = 0;
    const auto combos = forms.back()->findChildren<QComboBox *>();
    for (const QComboBox *combo : combos) {
        lists += quint64(combo->findChildren<QAbstractItemView *>().size());
    }
    Meter::print(QStringLiteral("lists"), {lists});
}
