#include "shell/desktop/command_line.h"

#include <filesystem>

#include <QCommandLineParser>

#include "shell/program/program.h"

namespace zol {
namespace {

constexpr auto usage = R"(usage: zol [FILE...]

Opens files after the start: crystals (.cry), structures (CIF and others), pictures of
Kikuchi patterns (.bmp, .png, .jpg, .tif).

  --help       this text
  --version    the version of the program

Exit status: 0 end of the program, 1 failure of the run, 2 an unknown option.
)";

/// Of Qt itself, which takes them later, and of what starts programs.
QList<QCommandLineOption> qt_options() {
  QList<QCommandLineOption> options;
  for (const char* name :
       {"platform", "platformpluginpath", "platformtheme", "plugin", "display", "geometry", "qwindowgeometry",
        "qwindowicon", "qwindowtitle", "icon", "title", "style", "stylesheet", "session", "qmljsdebugger"}) {
    options << QCommandLineOption(QLatin1String(name), {}, QStringLiteral("value"));
  }
  for (const char* name : {"reverse", "widgetcount"}) options << QCommandLineOption(QLatin1String(name));
  return options;
}

}  // namespace

CommandLine read_command_line(const std::vector<std::string>& arguments) {
  QCommandLineParser parser;
  parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
  const QCommandLineOption help(QStringList{QStringLiteral("h"), QStringLiteral("help")});
  const QCommandLineOption version(QStringList{QStringLiteral("v"), QStringLiteral("version")});
  parser.addOptions(qt_options() << help << version);
  QStringList words;  // names of files are bytes: each becomes a character, and back
  for (const auto& word : arguments) words << QString::fromLatin1(word.data(), static_cast<qsizetype>(word.size()));
  if (!parser.parse(words)) return {{}, "zol: " + parser.errorText().toStdString() + "\n\n" + usage, 2};
  if (parser.isSet(help)) return {{}, usage};
  if (parser.isSet(version)) return {{}, std::string(program_version) + '\n'};
  CommandLine line;
  for (const QString& file : parser.positionalArguments()) {
    std::error_code error;
    const std::string path = file.toLatin1().toStdString();
    const auto absolute = std::filesystem::absolute(path, error);
    line.files.push_back(error ? path : absolute.lexically_normal().string());
  }
  return line;
}

}  // namespace zol
