// Readers of scans under made-up files.
#pragma once

#include <string>

namespace zol::fuzz {

void scan_edax_up(const std::string& input);
void scan_oxford_ebsp(const std::string& input);
void scan_hdf5(const std::string& input);
/// The settings, beside some bytes of patterns.
void scan_nordif(const std::string& input);
/// Packed bytes, behind one for the room that they have.
void lzf(const std::string& input);

}  // namespace zol::fuzz
