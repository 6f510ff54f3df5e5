#pragma once

#include "core/Store.h"

#include <array>

/// One sponsor banner on the foot of the title page. The numbers are kept as typed; leading numbers are read from them.
struct SponsorBanner {
  bool chosen = false;
  /// Relative to the data folder.
  QString file;
  /// Millimetres on the page, and percent of the picture's natural size.
  QString right, down, size;
};

/// The range of a number field of a banner; the field holds its bound instead of a number outside.
struct BannerRange {
  int lowest, highest;
  /// The text itself, or the bound that its leading number exceeds.
  QString held(const QString &text) const;
};
namespace BannerFields {
constexpr BannerRange right{0, 183}, down{233, 283}, size{10, 800};
} // namespace BannerFields

/// Where the foot of the title page begins, millimetres: its line, its heading, and the edges of the page's content.
namespace Titelfuss {
constexpr double Links = 20, Rechts = 185, LinieY = 228, TextY = 229;
} // namespace Titelfuss

using Werbung = std::array<SponsorBanner, 8>;

/// The banners as werbung.dat has them, within their ranges; without the file the built-in ones.
Werbung loadBanners(const Store &store);
/// The content of werbung.dat.
QByteArray bannerBytes(const Werbung &werbung);
/// Replaces werbung.dat whole.
void saveBanners(const Store &store, const Werbung &werbung);
