// The windows with calculated pictures, and the calculators.
#include <array>

#include <QFile>

#include "tests/real_steps.h"

namespace zol {
namespace {

/// A pattern as a diffractometer would have it: the saved one over a background, 0.08 degrees off, not quite even.
QString measured_pattern(const User& user) {
  QFile saved(user.file("pattern.XDP"));
  QFile measured(user.file("measured.xy"));
  expect(saved.open(QIODevice::ReadOnly) && measured.open(QIODevice::WriteOnly), "no pattern can be measured");
  measured.write("# counts\n");
  double uneven = 0.5;
  while (!saved.atEnd()) {
    const QList<QByteArray> fields = saved.readLine().trimmed().split(',');
    if (fields.front().startsWith('"')) continue;
    uneven = 3.9 * uneven * (1 - uneven);  // between 0 and 1
    const double counts = fields.back().toDouble() / 20 + 30 + 12 * uneven;
    measured.write(QByteArray::number(fields.front().toDouble() + 0.08) + ' ' + QByteArray::number(counts) + '\n');
  }
  return measured.fileName();
}

}  // namespace

void lay_measured_pattern_under(const User& user) {
  user.drop_file("Xd", measured_pattern(user));
  user.click("Xd", "FitBoxes");
  const double zero = user.widget<QLineEdit>("Xd", "MeasuredZero").text().toDouble();
  expect(std::abs(zero - 0.08) < 0.005, "the zero was fitted as " + std::to_string(zero));
  user.drag("Xd", "Picture1", {0.2, 0.5}, {0.8, 0.5});
  for (const auto* entry :
       {"h k l at the peaks", "Ticks of all reflections", "d as second axis", "Radiation in the picture"}) {
    user.choose_text("Xd", QString::fromLatin1(entry));
  }
  user.take_picture("Xd", "curve-measured");
  user.choose_text("Xd", QStringLiteral("Show all"));
}

namespace {

/// By the context menu of a picture.
void export_picture(const User& user, const char* window_name, const char* entry, const char* name) {
  user.save(name, name, [&] { user.choose_in_picture(window_name, "Picture1", entry); });
}

/// The pattern of a crystal as a sphere, dragged to the left.
void use_master_pattern(const User& user) {
  user.load_crystal("Silicon.cry");
  user.choose("Pattern2", "ShowMasterPattern");
  user.fill("MasterPattern", {{"Points", "201"}});
  for (const auto* control : {"Make", "Bands", "Globe"}) user.click("MasterPattern", control);
  user.drag("MasterPattern", "Picture", {0.5, 0.5}, {0.3, 0.4});
  expect(user.widget<QLineEdit>("MasterPattern", "MiddleU").text().toDouble() > 0.2, "a drag does not turn the sphere");
  user.take_picture("MasterPattern", "master-pattern");
  user.save("master", "master.png", [&user] { user.choose("MasterPattern", "SavePicture"); });
  user.window("MasterPattern").close();
}

}  // namespace

void use_powder_windows(const User& user) {
  user.choose_radiation("CuKa");
  user.click("Main1", "Command7");
  const QString said = user.said_of_place("Xd", "Picture1", {0.25, 0.5});
  expect(said.startsWith(QStringLiteral("2θ ")) && said.contains(QStringLiteral(" Å")),
         "the status line of Xd says: " + said.toStdString());
  user.take_picture("Xd", "xd");
  user.save("pattern", "pattern.XDP", [&user] { user.click("Xd", "Command3"); });
  user.save("pattern", "pattern.BMP", [&user] { user.click("Xd", "Command4"); });
  lay_measured_pattern_under(user);
  user.window("Xd").close();
  user.choose_radiation("200");
  user.click("Main1", "Command8");
  expect(user.said_of_place("Dring", "Picture2", {0.3, 0.3}).startsWith(QStringLiteral("d* ")), "Dring says no place");
  user.take_picture("Dring", "dring");
  for (const auto* button : {"Check1", "Check2", "Check3", "Command1"}) user.click("Dring", button);
  user.take_picture("Dring", "dring-inverse");
  user.save("rings", "rings.EDP", [&user] { user.click("Dring", "Command4"); });
  user.save("rings", "rings.BMP", [&user] { user.click("Dring", "Command3"); });
  user.window("Dring").close();
}

void use_spot_windows(const User& user) {
  user.load_crystal("NaCl.cry");
  user.click("Main1", "Command9");
  user.fill("Pattern", {{"Text3", "1"}, {"Text4", "1"}, {"Text5", "0"}});
  user.click("Pattern", "Check3");
  when_asked<QInputDialog>([](QInputDialog& dialog) {
    QTest::keyClicks(dialog.findChild<QLineEdit*>(), QStringLiteral("2"));
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  user.choose("Pattern", "Spotsize");
  user.click("Pattern", "Command8");
  user.take_picture("Pattern", "spots");
  user.save("spots", "spots.bmp", [&user] { user.choose("Pattern", "ISAVE"); });
  export_picture(user, "Pattern", "Export PNG, dou&ble size...", "spots.png");
  export_picture(user, "Pattern", "Export &SVG...", "spots.svg");
  export_picture(user, "Pattern", "Export P&DF...", "spots.pdf");
  user.click("Pattern", "Command1");
  user.click("Main1", "Command12");
  user.fill("FiberTexture", {{"Text1", "1"}, {"Text3", "1"}, {"Text4", "1"}, {"Text5", "1"}, {"Text2", "8"}});
  user.click("FiberTexture", "Command8");
  user.take_picture("FiberTexture", "fiber-texture");
  user.save("fiber", "fiber.bmp", [&user] { user.choose("FiberTexture", "Isave"); });
  user.click("FiberTexture", "Command1");
}

void use_kikuchi_windows(const User& user) {
  user.choose_radiation("20");
  for (const auto& [crystal, u, v, w, picture] : {std::array{"Silicon.cry", "0", "0", "1", "kikuchi-silicon"},
                                                  {"ZnO.cry", "0", "0", "1", "kikuchi-zincite"},
                                                  {"NaCl.cry", "1", "1", "0", "kikuchi-nacl"}}) {
    user.load_crystal(crystal);
    user.click("Main1", "Command10");
    user.fill("Pattern2", {{"Text3", u}, {"Text4", v}, {"Text5", w}});
    user.click("Pattern2", "Command8");
    user.take_picture("Pattern2", picture);
    if (picture == std::string_view("kikuchi-silicon")) {
      user.take_numbered_picture("Pattern2", "kikuchi-numbered",
                                 {"menubar", "Text3", "Command8", "Text1", "Text21", "Check2", "Command1(0)",
                                  "Command2", "Command6", "List1", "Picture1"});
    }
  }
  user.save("kikuchi", "kikuchi.bmp", [&user] { user.choose("Pattern2", "ISAVE"); });
  user.click("Pattern2", "Check2");
  auto& turn = user.widget<QAbstractButton>("Pattern2", "Command6");
  user.click("Pattern2", "Command8");
  QTest::qWait(300);  // the map comes up
  expect(turn.isActiveWindow() &&
             QGuiApplication::topLevelAt(turn.mapToGlobal(turn.rect().center())) == turn.window()->windowHandle(),
         "the map covers the pattern that it goes with");
  user.take_picture("Zaxis", "zone-axis-map");
  user.save("map", "map.bmp", [&user] { user.choose("Zaxis", "SaveMap"); });
  user.window("Zaxis").close();
  user.click("Pattern2", "Check2");
  use_master_pattern(user);
  user.window("Pattern2").close();
}

void use_calculators(const User& user) {
  user.load_crystal("Rutile.cry");
  user.choose("Main1", "Show_utility");
  user.fill("Utility", {{"Text1", "30"}, {"Text2", "0"}, {"Text3", "0.8906"}, {"Text4", "30\r"}});
  user.fill("Utility", {{"Text9", "10"}, {"Text8", "-20"}, {"Text7", "17.368"}, {"Text6", "30\r"}});
  User::type_on(user.widget<QLineEdit>("Utility", "Text5(0)"), "1\r2\r0\r0\r1\r0\r0\r0\r4");
  user.click("Utility", "Command2");
  user.fill("Utility", {{"Text10", "1"}, {"Text11", "0"}, {"Text12", "1"}});
  user.click("Utility", "Command4");
  user.fill("Utility", {{"Text46", "1"}, {"Text47", "0"}, {"Text48", "1"}});
  user.fill("Utility", {{"Text49", "0"}, {"Text50", "0"}, {"Text51", "1"}});
  user.take_picture("Utility", "utility");
  user.window("Utility").close();
  user.click("Main1", "Command11");
  user.fill("AtomDistance", {{"Text1", "3"}});
  user.click("AtomDistance", "Command1");
  expect(user.lines("AtomDistance", "List1") > 0, "no distances");
  user.take_picture("AtomDistance", "atom-distance");
  user.window("AtomDistance").close();
}

}  // namespace zol
