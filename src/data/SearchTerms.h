// What a user searches for, as terms of a statement. The text is sent as it was typed, unescaped,
// and never becomes a statement of its own.
#pragma once

#include <QString>
#include <QStringList>

/// Whether the text, put between apostrophes as it stands, ends where it ends: it holds no
/// apostrophe, or only runs of an even number of them, which a server reads as half as many.
bool staysInsideLiteral(const QString& text);

/// Each term, such as " OR [Name] LIKE '%", followed by the text and "%'". For a text that would
/// leave its literal this throws what a server says to one: SqlError 105, "Unclosed quotation mark
/// after the character string '...'.", with the typed text in it.
QString searchTerms(const QStringList& terms, const QString& text);
