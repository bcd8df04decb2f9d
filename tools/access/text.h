#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

namespace tools {

/// A text of an Access file since 2000: UTF-16, or a mix of one-byte and two-byte runs behind the mark FF FE.
/// Nothing where it is cut inside a character or holds half of a surrogate pair.
std::optional<QString> decodeUnicode(const QByteArray& bytes);

/// A text of an Access 97 file. Nothing where it is not valid in the code page.
std::optional<QString> decodeCodePage(const QByteArray& bytes, int codePage);

/// The text with U+FFFD for what is not valid, for those who want to see the rest.
QString decodeLeniently(const QByteArray& bytes, int codePage);

bool knownCodePage(int codePage);

/// The code page of an Access 97 file. The header is believed where it says Korean; a header that says
/// nothing but "western" is written by a Korean system too, so the texts beyond ASCII decide.
int chooseCodePage(int headerCodePage, int language, const QList<QByteArray>& texts);

}  // namespace tools
