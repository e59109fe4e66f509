# SPDX-FileCopyrightText: 2026 The Quorvin authors
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Asks PROGRAM for its suites and writes OUTPUT, which gives CTest one test a suite. A process a test, as gtest_discover_tests has
# it, spends most of its time on loading libraries: under the address sanitizer a second for a test of milliseconds.

# What libraries keep for good is looked for where the tests run.
set(ENV{ASAN_OPTIONS} "detect_leaks=0:$ENV{ASAN_OPTIONS}")
execute_process(COMMAND ${PROGRAM} --gtest_list_tests OUTPUT_VARIABLE listed COMMAND_ERROR_IS_FATAL ANY)
# A suite stands at the start of its line and ends in a dot; its tests are indented.
string(REGEX MATCHALL "(^|\n)[A-Za-z0-9_/]+\\." suites "${listed}")
set(script "")
foreach(suite IN LISTS suites)
    string(STRIP "${suite}" suite)
    string(REGEX REPLACE "\\.$" "" name "${suite}")
    string(APPEND script "add_test([[${name}]] [[${PROGRAM}]] [[--gtest_filter=${suite}*]])\n")
endforeach()
file(WRITE ${OUTPUT} "${script}")
