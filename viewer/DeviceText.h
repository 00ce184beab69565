#pragma once

#include <QMessageBox>
#include <QTextDocument>

/// What a device or a file says, for places that would find markup, mnemonics or marks of their own in it. A label
/// takes it as it is once its format is Qt::PlainText.
namespace DeviceText {

/// Wrapped, as rich text is, where it is long.
inline QString toolTip(const QString &text)
{
    return text.isEmpty() ? text : Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal);
}

inline QString action(QString text)
{
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

inline QString windowTitle(QString text)
{
    return text.replace(QLatin1String("[*]"), QLatin1String("[*][*]")); // the mark of what is not saved
}

inline void tell(QWidget *parent, QMessageBox::Icon icon, const QString &title, const QString &text)
{
    QMessageBox box(icon, title, text, QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

} // namespace DeviceText
