// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/desktop/PlaceText.h"

#include "places/Towns.h"
#include "shell/desktop/Counts.h"

#include <QCoreApplication>
#include <QStringList>

#include <cmath>

namespace quorvin {

namespace {

struct PlaceWords {
    Q_DECLARE_TR_FUNCTIONS(quorvin::PlaceText)
};

constexpr double kMetresOfKilometre = 1000;

QString windText(double bearing)
{
    const QStringList winds{PlaceWords::tr("N"),  PlaceWords::tr("NE"), PlaceWords::tr("E"),
                            PlaceWords::tr("SE"), PlaceWords::tr("S"),  PlaceWords::tr("SW"),
                            PlaceWords::tr("W"),  PlaceWords::tr("NW")};
    return winds[std::lround(bearing * static_cast<double>(winds.size()) / 360) % winds.size()];
}

QString townText(const Town &town)
{
    QStringList parts{town.name};
    if (!town.state.isEmpty() && !town.state.contains(town.name))
        parts.append(town.state);
    if (!town.country.isEmpty() && town.country != town.name)
        parts.append(town.country);
    return parts.join(QStringLiteral(", "));
}

qint64 roundedKilometres(double metres)
{
    const double kilometres = metres / kMetresOfKilometre;
    const qint64 step = kilometres < 100 ? 1 : kilometres < 1000 ? 10 : 100;
    return std::llround(kilometres / static_cast<double>(step)) * step;
}

} // namespace

QString placeText(const NearestTown &nearest)
{
    QString town = townText(*nearest.town);
    if (nearest.metres < kMetresOfKilometre)
        return town;
    return PlaceWords::tr("%1 km %2 of %3")
        .arg(groupedCount(roundedKilometres(nearest.metres)), windText(nearest.bearing), town);
}

} // namespace quorvin
