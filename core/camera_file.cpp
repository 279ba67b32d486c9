#include "core/camera_file.h"

#include "core/record_reader.h"
#include "core/record_writer.h"

namespace zol {

void read_camera_file(const std::string& path, Module1State& state) {
  RecordReader file(path);
  state.CamAcquisition = file.next_single("the acquisition angle");
  state.CamXShift = file.next_single("the x shift");
  state.CamYShift = file.next_single("the y shift");
  state.CamDetector = file.next_single("the detector edge");
  state.CamXYRatio = file.next_single("the xy ratio");
  state.CamNormal = file.next_single("the substrate normal");
}

void write_camera_file(const std::string& path, const Module1State& state) {
  RecordWriter file(path);
  file.field(state.CamAcquisition).field(state.CamXShift).field(state.CamYShift);
  file.field(state.CamDetector).field(state.CamXYRatio).field(state.CamNormal).end_line();
  file.commit();
}

}  // namespace zol
