// The two lines K-alpha 1 and K-alpha 2 of X-ray tubes.
#pragma once

#include <optional>
#include <string_view>

namespace zol {

/// Wavelengths in angstroms; the first line is twice as strong as the second one.
struct KAlphaDoublet {
  std::string_view element;
  double alpha_1, alpha_2;
  [[nodiscard]] double mean() const { return (2 * alpha_1 + alpha_2) / 3; }
};

/// The doublet that a wavelength in angstroms is meant for, within 1.5 % of its mean; none where there is none. Cr, Fe,
/// Co, Cu and Mo are known. Source: Hölzer, Fritsch, Deutsch, Härtwig & Förster, Phys. Rev. A 56 (1997) 4554; Mo:
/// International Tables for Crystallography C (2004), table 4.2.2.4.
[[nodiscard]] std::optional<KAlphaDoublet> doublet_at(double wavelength);

}  // namespace zol
