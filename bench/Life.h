#pragma once

#include <QString>

class Meter;
struct Subject;

/// What a form goes through from its construction to its destruction, measured phase by phase. Of each phase there are
/// two figures: "NAME|call", of what is called, and "NAME|rest", of what then happens until there is nothing left to do.
void live(const Subject &subject, Meter &meter, const QString &prefix);

/// Builds and shows some at once and writes down what each takes: "heap", "resident" and "lists", those of combo boxes
/// that were made though none was opened.
void measureMemory(const Subject &subject);
