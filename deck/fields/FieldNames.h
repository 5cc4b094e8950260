// Names by which assistive programs tell the fields of a row apart: of its label, the text of a button or box, and the
// caption of its column. A field that has a name keeps it, and so does one that its text or its label names alone.
#pragma once

#include <QStringList>
#include <initializer_list>

class QWidget;

namespace orvelle::deck {

// `captions` are empty where the columns have none; null fields are passed over.
void NameFields(const QString& label, const QStringList& captions, std::initializer_list<QWidget*> fields);

}  // namespace orvelle::deck
