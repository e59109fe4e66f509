// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <exiv2/exiv2.hpp>

#include <map>
#include <set>
#include <string>

namespace quorvin {

/// The namespace prefixes of one XMP packet. The library knows a namespace that is not its own under the
/// prefix with which it first met it in this process, and knows it for all files from then on; a file is to
/// read the same whatever was read before it.
class XmpPrefixes {
public:
    /// `image` is open and read, and must outlive this object.
    explicit XmpPrefixes(const Exiv2::Image &image);

    /// The packet's own prefix for a prefix of the library.
    std::string own(const std::string &prefix) const;
    /// The same for those in a path such as Directory[1]/Container:Item.
    std::string ownPath(const std::string &path) const;
    /// Who knows the namespace of the innermost member of a path, by this file alone.
    enum class Innermost {
        OfTheLibrary, ///< or there is no member
        OfTheFile, ///< it has a property in it that is no member of another
        Unknown,
    };
    Innermost innermost(const std::string &path) const;

private:
    void readDeclarations(const std::string &packet);

    std::map<std::string, std::string> _prefixes; ///< by namespace; empty when the library's own are enough
    std::set<std::string> _outermost;
};

} // namespace quorvin
