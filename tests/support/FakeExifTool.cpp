// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/FakeExifTool.h"

namespace quorvin::test {

namespace {

constexpr const char *kProgram = R"(
use strict;
$| = 1;
my ($arguments, $mark) = ('', '');
while (my $line = <STDIN>) {
    $mark = <STDIN>, next if $line eq "-echo4\n";
    $arguments .= $line, next unless $line =~ /^-execute(\d+)/;
    my $number = $1;
    sleep 1000 if $arguments =~ m{/hang};
    exit 1 if $arguments =~ m{/die};
    if ($arguments =~ m{/flood}) {
        print STDERR 'e' x 1000000;
        print 'o' x 1000000;
    } elsif ($arguments =~ m{/complain}) {
        print STDERR "Error: no such thing\nand more\n";
    } elsif ($arguments =~ m{/environment}) {
        print join ' ', sort keys %ENV;
    } else {
        print "@ARGV\n$arguments";
    }
    print STDERR $mark;
    print "{ready$number}\n";
    $arguments = '';
}
)";

} // namespace

FakeExifTool::FakeExifTool() : _path(qgetenv("PATH"))
{
    _folder.write(QStringLiteral("exiftool"), kProgram);
    qputenv("PATH", _folder.path().toUtf8());
}

FakeExifTool::~FakeExifTool()
{
    qputenv("PATH", _path);
}

NoExifTool::NoExifTool() : _path(qgetenv("PATH"))
{
    qputenv("PATH", "/nowhere");
}

NoExifTool::~NoExifTool()
{
    qputenv("PATH", _path);
}

} // namespace quorvin::test
