#pragma once

#include <arv.h> // before Qt

#include <QString>

/// An error as Aravis and GLib report it, freed by itself.
struct Failure
{
    Failure() = default;
    ~Failure() { clear(); }
    Q_DISABLE_COPY(Failure)

    GError **slot()
    {
        clear();
        return &error;
    }
    void clear() { g_clear_error(&error); }
    explicit operator bool() const { return error; }
    bool is(GQuark domain, int code) const { return g_error_matches(error, domain, code); }
    bool isRule() const { return error && error->domain == ARV_GC_ERROR; }
    bool isAbsence() const { return is(ARV_GC_ERROR, ARV_GC_ERROR_PROPERTY_NOT_DEFINED); }
    /// Without the names of the nodes, in brackets, that it came through: ours is said anyway. Never empty.
    QString text() const
    {
        QString text = QString::fromUtf8(error ? error->message : "?");
        while (text.startsWith(QLatin1Char('[')) && text.contains(QLatin1String("] "))) {
            text.remove(0, text.indexOf(QLatin1String("] ")) + 2);
        }
        return text;
    }

    GError *error = nullptr;
};
