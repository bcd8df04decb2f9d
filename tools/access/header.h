#pragma once

#include <QByteArray>

#include <optional>

namespace tools {

/// What the first page of an Access file tells before anything else of it is read.
struct AccessHeader {
    int version = 0;  // 0 Access 97, 1 Access 2000 to 2003, 2 Access 2007, 3 and above later ones
    int codePage = 0;
    int language = 0;
    bool encrypted = false;
    bool password = false;

    /// "Access 97", "Access 2000", "Access 2007" …
    const char* formatName() const;
    int pageSize() const { return version == 0 ? 2048 : 4096; }
    /// True where texts are in a code page and not in Unicode.
    bool codePageTexts() const { return version == 0; }
    /// True where pages are enciphered with a key that only the password gives.
    bool sealed() const { return encrypted && version >= 2; }
};

/// Nothing where the bytes do not begin an Access file that is known.
std::optional<AccessHeader> parseAccessHeader(const QByteArray& firstPage);

}  // namespace tools
