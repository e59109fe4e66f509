// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "export/HtmlEntities.h"

#include <algorithm>
#include <array>

namespace quorvin {

namespace {

using L = QLatin1String;

constexpr std::array<HtmlEscape, 33> kUnicodeEscapes{
    {{34, L("&quot;")},     {38, L("&amp;")},      {39, L("&apos;")},     {60, L("&lt;")},
     {62, L("&gt;")},       {338, L("&OElig;")},   {339, L("&oelig;")},   {352, L("&Scaron;")},
     {353, L("&scaron;")},  {376, L("&Yuml;")},    {710, L("&circ;")},    {732, L("&tilde;")},
     {8194, L("&ensp;")},   {8195, L("&emsp;")},   {8201, L("&thinsp;")}, {8204, L("&zwnj;")},
     {8205, L("&zwj;")},    {8206, L("&lrm;")},    {8207, L("&rlm;")},    {8211, L("&ndash;")},
     {8212, L("&mdash;")},  {8216, L("&lsquo;")},  {8217, L("&rsquo;")},  {8218, L("&sbquo;")},
     {8220, L("&ldquo;")},  {8221, L("&rdquo;")},  {8222, L("&bdquo;")},  {8224, L("&dagger;")},
     {8225, L("&Dagger;")}, {8240, L("&permil;")}, {8249, L("&lsaquo;")}, {8250, L("&rsaquo;")},
     {8364, L("&euro;")}}};

constexpr std::array<HtmlEscape, 253> kAsciiEscapes{
    {{34, L("&quot;")},      {38, L("&amp;")},      {39, L("&apos;")},      {60, L("&lt;")},
     {62, L("&gt;")},        {160, L("&nbsp;")},    {161, L("&iexcl;")},    {162, L("&cent;")},
     {163, L("&pound;")},    {164, L("&curren;")},  {165, L("&yen;")},      {166, L("&brvbar;")},
     {167, L("&sect;")},     {168, L("&uml;")},     {169, L("&copy;")},     {170, L("&ordf;")},
     {171, L("&laquo;")},    {172, L("&not;")},     {173, L("&shy;")},      {174, L("&reg;")},
     {175, L("&macr;")},     {176, L("&deg;")},     {177, L("&plusmn;")},   {178, L("&sup2;")},
     {179, L("&sup3;")},     {180, L("&acute;")},   {181, L("&micro;")},    {182, L("&para;")},
     {183, L("&middot;")},   {184, L("&cedil;")},   {185, L("&sup1;")},     {186, L("&ordm;")},
     {187, L("&raquo;")},    {188, L("&frac14;")},  {189, L("&frac12;")},   {190, L("&frac34;")},
     {191, L("&iquest;")},   {192, L("&Agrave;")},  {193, L("&Aacute;")},   {194, L("&Acirc;")},
     {195, L("&Atilde;")},   {196, L("&Auml;")},    {197, L("&Aring;")},    {198, L("&AElig;")},
     {199, L("&Ccedil;")},   {200, L("&Egrave;")},  {201, L("&Eacute;")},   {202, L("&Ecirc;")},
     {203, L("&Euml;")},     {204, L("&Igrave;")},  {205, L("&Iacute;")},   {206, L("&Icirc;")},
     {207, L("&Iuml;")},     {208, L("&ETH;")},     {209, L("&Ntilde;")},   {210, L("&Ograve;")},
     {211, L("&Oacute;")},   {212, L("&Ocirc;")},   {213, L("&Otilde;")},   {214, L("&Ouml;")},
     {215, L("&times;")},    {216, L("&Oslash;")},  {217, L("&Ugrave;")},   {218, L("&Uacute;")},
     {219, L("&Ucirc;")},    {220, L("&Uuml;")},    {221, L("&Yacute;")},   {222, L("&THORN;")},
     {223, L("&szlig;")},    {224, L("&agrave;")},  {225, L("&aacute;")},   {226, L("&acirc;")},
     {227, L("&atilde;")},   {228, L("&auml;")},    {229, L("&aring;")},    {230, L("&aelig;")},
     {231, L("&ccedil;")},   {232, L("&egrave;")},  {233, L("&eacute;")},   {234, L("&ecirc;")},
     {235, L("&euml;")},     {236, L("&igrave;")},  {237, L("&iacute;")},   {238, L("&icirc;")},
     {239, L("&iuml;")},     {240, L("&eth;")},     {241, L("&ntilde;")},   {242, L("&ograve;")},
     {243, L("&oacute;")},   {244, L("&ocirc;")},   {245, L("&otilde;")},   {246, L("&ouml;")},
     {247, L("&divide;")},   {248, L("&oslash;")},  {249, L("&ugrave;")},   {250, L("&uacute;")},
     {251, L("&ucirc;")},    {252, L("&uuml;")},    {253, L("&yacute;")},   {254, L("&thorn;")},
     {255, L("&yuml;")},     {338, L("&OElig;")},   {339, L("&oelig;")},    {352, L("&Scaron;")},
     {353, L("&scaron;")},   {376, L("&Yuml;")},    {402, L("&fnof;")},     {710, L("&circ;")},
     {732, L("&tilde;")},    {913, L("&Alpha;")},   {914, L("&Beta;")},     {915, L("&Gamma;")},
     {916, L("&Delta;")},    {917, L("&Epsilon;")}, {918, L("&Zeta;")},     {919, L("&Eta;")},
     {920, L("&Theta;")},    {921, L("&Iota;")},    {922, L("&Kappa;")},    {923, L("&Lambda;")},
     {924, L("&Mu;")},       {925, L("&Nu;")},      {926, L("&Xi;")},       {927, L("&Omicron;")},
     {928, L("&Pi;")},       {929, L("&Rho;")},     {931, L("&Sigma;")},    {932, L("&Tau;")},
     {933, L("&Upsilon;")},  {934, L("&Phi;")},     {935, L("&Chi;")},      {936, L("&Psi;")},
     {937, L("&Omega;")},    {945, L("&alpha;")},   {946, L("&beta;")},     {947, L("&gamma;")},
     {948, L("&delta;")},    {949, L("&epsilon;")}, {950, L("&zeta;")},     {951, L("&eta;")},
     {952, L("&theta;")},    {953, L("&iota;")},    {954, L("&kappa;")},    {955, L("&lambda;")},
     {956, L("&mu;")},       {957, L("&nu;")},      {958, L("&xi;")},       {959, L("&omicron;")},
     {960, L("&pi;")},       {961, L("&rho;")},     {962, L("&sigmaf;")},   {963, L("&sigma;")},
     {964, L("&tau;")},      {965, L("&upsilon;")}, {966, L("&phi;")},      {967, L("&chi;")},
     {968, L("&psi;")},      {969, L("&omega;")},   {977, L("&thetasym;")}, {978, L("&upsih;")},
     {982, L("&piv;")},      {8194, L("&ensp;")},   {8195, L("&emsp;")},    {8201, L("&thinsp;")},
     {8204, L("&zwnj;")},    {8205, L("&zwj;")},    {8206, L("&lrm;")},     {8207, L("&rlm;")},
     {8211, L("&ndash;")},   {8212, L("&mdash;")},  {8216, L("&lsquo;")},   {8217, L("&rsquo;")},
     {8218, L("&sbquo;")},   {8220, L("&ldquo;")},  {8221, L("&rdquo;")},   {8222, L("&bdquo;")},
     {8224, L("&dagger;")},  {8225, L("&Dagger;")}, {8226, L("&bull;")},    {8230, L("&hellip;")},
     {8240, L("&permil;")},  {8242, L("&prime;")},  {8243, L("&Prime;")},   {8249, L("&lsaquo;")},
     {8250, L("&rsaquo;")},  {8254, L("&oline;")},  {8260, L("&frasl;")},   {8364, L("&euro;")},
     {8465, L("&image;")},   {8472, L("&weierp;")}, {8476, L("&real;")},    {8482, L("&trade;")},
     {8501, L("&alefsym;")}, {8592, L("&larr;")},   {8593, L("&uarr;")},    {8594, L("&rarr;")},
     {8595, L("&darr;")},    {8596, L("&harr;")},   {8629, L("&crarr;")},   {8656, L("&lArr;")},
     {8657, L("&uArr;")},    {8658, L("&rArr;")},   {8659, L("&dArr;")},    {8660, L("&hArr;")},
     {8704, L("&forall;")},  {8706, L("&part;")},   {8707, L("&exist;")},   {8709, L("&empty;")},
     {8711, L("&nabla;")},   {8712, L("&isin;")},   {8713, L("&notin;")},   {8715, L("&ni;")},
     {8719, L("&prod;")},    {8721, L("&sum;")},    {8722, L("&minus;")},   {8727, L("&lowast;")},
     {8730, L("&radic;")},   {8733, L("&prop;")},   {8734, L("&infin;")},   {8736, L("&ang;")},
     {8743, L("&and;")},     {8744, L("&or;")},     {8745, L("&cap;")},     {8746, L("&cup;")},
     {8747, L("&int;")},     {8756, L("&there4;")}, {8764, L("&sim;")},     {8773, L("&cong;")},
     {8776, L("&asymp;")},   {8800, L("&ne;")},     {8801, L("&equiv;")},   {8804, L("&le;")},
     {8805, L("&ge;")},      {8834, L("&sub;")},    {8835, L("&sup;")},     {8836, L("&nsub;")},
     {8838, L("&sube;")},    {8839, L("&supe;")},   {8853, L("&oplus;")},   {8855, L("&otimes;")},
     {8869, L("&perp;")},    {8901, L("&sdot;")},   {8968, L("&lceil;")},   {8969, L("&rceil;")},
     {8970, L("&lfloor;")},  {8971, L("&rfloor;")}, {9001, L("&lang;")},    {9002, L("&rang;")},
     {9674, L("&loz;")},     {9824, L("&spades;")}, {9827, L("&clubs;")},   {9829, L("&hearts;")},
     {9830, L("&diams;")}}};

static_assert(std::ranges::is_sorted(kUnicodeEscapes, {}, &HtmlEscape::unit));
static_assert(std::ranges::is_sorted(kAsciiEscapes, {}, &HtmlEscape::unit));

} // namespace

std::span<const HtmlEscape> unicodeHtmlEscapes()
{
    return kUnicodeEscapes;
}

std::span<const HtmlEscape> asciiHtmlEscapes()
{
    return kAsciiEscapes;
}

} // namespace quorvin
