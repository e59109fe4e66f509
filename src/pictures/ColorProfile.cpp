// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pictures/ColorProfile.h"

#include "model/Log.h"

#include <lcms2.h>

#include <algorithm>
#include <array>
#include <memory>

namespace quorvin {

namespace {

struct Model {
    cmsColorSpaceSignature space;
    QLatin1String name;
};

constexpr std::array kModels{
    Model{cmsSigGrayData, QLatin1String("Gray")},
    Model{cmsSigRgbData, QLatin1String("RGB")},
    Model{cmsSigCmykData, QLatin1String("CMYK")},
    Model{cmsSigLabData, QLatin1String("LAB")},
};

QString description(cmsHPROFILE profile)
{
    const cmsUInt32Number bytes = cmsGetProfileInfo(profile, cmsInfoDescription, "en", "US", nullptr, 0);
    std::wstring text(bytes / sizeof(wchar_t), L'\0');
    cmsGetProfileInfo(profile, cmsInfoDescription, "en", "US", text.data(), bytes);
    text.resize(std::min(text.find(L'\0'), text.size()));
    return QString::fromStdWString(text).trimmed();
}

void logMessage(cmsContext, cmsUInt32Number, const char *message)
{
    qCDebug(lcLibraries) << "lcms:" << message;
}

} // namespace

Expected<ColorProfile> ColorProfile::read(const QByteArray &icc)
{
    [[maybe_unused]] static const bool routed = (cmsSetLogErrorHandler(logMessage), true);
    const std::unique_ptr<void, decltype(&cmsCloseProfile)> profile(
        cmsOpenProfileFromMem(icc.constData(), static_cast<cmsUInt32Number>(icc.size())), &cmsCloseProfile);
    if (!profile)
        return failure(QStringLiteral("not a colour profile"));
    const auto *model = std::ranges::find(kModels, cmsGetColorSpace(profile.get()), &Model::space);
    return ColorProfile{model == kModels.end() ? QString() : QString(model->name),
                        description(profile.get())};
}

} // namespace quorvin
