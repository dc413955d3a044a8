// `svgfigurer service open-svg [FILE|-]` and `svgfigurer service svg-to-view [FILE|-]`: call
// the desktop program's conversion service on the session bus. The bus starts the program
// when it is not running. Exit 0 with the result on standard output, 1 with the service's
// error message, 2 when the input cannot be read, 3 when no bus or service can be reached.
#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <iostream>
#include <memory>
#include <string>

#include "AppSupport.h"
#include "Commands.h"
#include "Input.h"

namespace svgfigurer::cli {

namespace {

// The service replies with errors in this domain; any other error means it was not reached.
constexpr char serviceErrorDomain[] = "net.quivane.errors.figurer.svg.errors.";
// Room for the bus to start the program, which loads its preview engine first.
constexpr int callTimeoutMilliseconds = 60000;

void callService(const std::string& method, const std::string& path) {
  auto input = readInput(path);
  if (!input) throw CLI::RuntimeError(2);
  // QtDBus wants an application object for its event dispatch; it takes no arguments here.
  static int argc = 1;
  static char name[] = "svgfigurer";
  static char* argv[] = {name, nullptr};
  std::unique_ptr<QCoreApplication> application;
  if (QCoreApplication::instance() == nullptr) {
    application = std::make_unique<QCoreApplication>(argc, argv);
  }
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) {
    printError("no session bus: " + bus.lastError().message().toStdString());
    throw CLI::RuntimeError(3);
  }
  QDBusMessage call = QDBusMessage::createMethodCall(
      QStringLiteral("net.quivane.SVGFigurer"), QStringLiteral("/net/quivane/SVGFigurer"),
      QStringLiteral("net.quivane.SVGFigurer.Service"), QString::fromStdString(method));
  call << QString::fromStdString(input->text);
  const QDBusMessage reply = bus.call(call, QDBus::Block, callTimeoutMilliseconds);
  if (reply.type() == QDBusMessage::ErrorMessage) {
    printError(reply.errorMessage().toStdString());
    throw CLI::RuntimeError(reply.errorName().startsWith(QLatin1String(serviceErrorDomain)) ? 1
                                                                                            : 3);
  }
  if (reply.type() != QDBusMessage::ReplyMessage) {
    printError("no reply from the service");
    throw CLI::RuntimeError(3);
  }
  if (!reply.arguments().isEmpty()) {
    std::cout << reply.arguments().front().toString().toStdString() << std::flush;
  }
}

}  // namespace

void addServiceCommand(CLI::App& app) {
  auto* command =
      app.add_subcommand("service", "Call the conversion service of the running desktop program");
  command->require_subcommand(1);
  struct Entry {
    const char* name;
    const char* method;
    const char* description;
  };
  for (const auto& entry :
       {Entry{"open-svg", "OpenSVG", "Open the SVG text as a new document in the desktop program"},
        Entry{"svg-to-view", "SvgToView",
              "Print the SwiftUI code the desktop program makes of the SVG text"}}) {
    auto* sub = command->add_subcommand(entry.name, entry.description);
    auto file = std::make_shared<std::string>("-");
    sub->add_option("file", *file, "The SVG file, or - for standard input");
    sub->callback([file, method = std::string(entry.method)] { callService(method, *file); });
  }
}

}  // namespace svgfigurer::cli
