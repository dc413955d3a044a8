// The service and the application interface called over a private session bus from a
// second connection, as another program would, and the command-line client against it.
#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>
#include <atomic>
#include <chrono>
#include <thread>

#include "AppTestSupport.h"
#include "SVGFigurerService/ApplicationService.h"

using namespace SVGFigurerService;
using AppTest::circleSVG;

namespace {

struct CommandResult {
  int exitCode;
  std::string out;
  std::string err;
};

class ServiceTest : public testing::Test {
 protected:
  AppTest::Fixture fixture;
  AppTest::FakeController controller{fixture.pending};
  int activations = 0;
  ApplicationService service{fixture.environment(), controller, [this] { ++activations; }};

  void SetUp() override { ASSERT_TRUE(service.registerService()); }

  // A call from a connection of its own, answered while this thread's event loop runs.
  QDBusMessage call(const char* interface, const char* method, const QVariantList& arguments) {
    QDBusConnection client =
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("client"));
    QDBusMessage message = QDBusMessage::createMethodCall(
        busName, objectPath, QString::fromLatin1(interface), QString::fromLatin1(method));
    message.setArguments(arguments);
    QDBusPendingCall pending = client.asyncCall(message, 20000);
    EXPECT_TRUE(QTest::qWaitFor([&] { return pending.isFinished(); }, 25000));
    return pending.reply();
  }
  QDBusMessage callService(const char* method, const std::string& svg) {
    return call(serviceInterface, method, {QString::fromStdString(svg)});
  }

  // Runs the command-line program without blocking this thread, which serves its calls.
  CommandResult run(const QStringList& arguments, const std::string& input) {
    QProcess process;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"),
                       QString::fromStdString(fixture.folder.path().string()));
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(SVGFIGURER_CLI), arguments);
    process.write(input.data(), qint64(input.size()));
    process.closeWriteChannel();
    EXPECT_TRUE(QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, 60000));
    return {process.exitCode(), process.readAllStandardOutput().toStdString(),
            process.readAllStandardError().toStdString()};
  }

  void waitForHandedFiles(QSignalSpy& finished, int count) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return finished.count() >= count; }, 20000));
  }
};

TEST_F(ServiceTest, EmptyTextIsAnErrorReplyForEachEntryPointAndUnparsableTextOpens) {
  for (const auto& [method, message] : {std::pair{"OpenSVG", "Missing SVG text? (-32423)"},
                                        std::pair{"SvgToView", "Missing SVG text? (-22423)"}}) {
    const QDBusMessage reply = callService(method, "");
    EXPECT_EQ(reply.type(), QDBusMessage::ErrorMessage) << method;
    EXPECT_EQ(reply.errorName(),
              QStringLiteral("net.quivane.errors.figurer.svg.errors.MissingSVGText"));
    EXPECT_EQ(reply.errorMessage().toStdString(), message);
  }
  EXPECT_TRUE(controller.opened.empty());
  EXPECT_EQ(fixture.log.count("got no SVG string from pasteboard!"), 2u);

  EXPECT_EQ(callService("OpenSVG", "<svg").type(), QDBusMessage::ReplyMessage);
  ASSERT_EQ(controller.opened.size(), 1u);
  EXPECT_EQ(controller.opened[0].swift, "// Could not parse SVG\n");
}

TEST_F(ServiceTest, FailedOpenKeepsTheRecordForTheNextDocument) {
  controller.failWith = "no window";
  const QDBusMessage reply = callService("OpenSVG", circleSVG);
  EXPECT_EQ(reply.errorName(),
            QStringLiteral("net.quivane.errors.figurer.svg.errors.CouldNotCreateDocument"));
  EXPECT_EQ(reply.errorMessage(), QStringLiteral("Could not create new document? (-32424)"));
  EXPECT_EQ(fixture.pending.size(), 1u);
  EXPECT_TRUE(
      fixture.log.contains(CoreS::LogLevel::error, "could not open new document: no window"));
  controller.failWith.reset();
  EXPECT_EQ(callService("OpenSVG", "<svg/>").type(), QDBusMessage::ReplyMessage);
  ASSERT_EQ(controller.opened.size(), 1u);
  EXPECT_EQ(controller.opened[0].svg, circleSVG);
}

TEST_F(ServiceTest, SvgToViewEqualsTheConvertCommandWithThePersistedDefault) {
  auto config = SVGFigurerApp::SVGFigurerConfiguration::fresh();
  config.rootViewName = "Figure";
  config.previewProvider = false;
  fixture.defaults.setDefaultConfiguration(config);
  const QDBusMessage reply = callService("SvgToView", circleSVG);
  ASSERT_EQ(reply.type(), QDBusMessage::ReplyMessage);
  const auto converted = run({QStringLiteral("convert"), QStringLiteral("-")}, circleSVG);
  ASSERT_EQ(converted.exitCode, 0) << converted.err;
  EXPECT_EQ(reply.arguments().value(0).toString().toStdString(), converted.out);
  EXPECT_NE(converted.out.find("Figure"), std::string::npos);
}

TEST_F(ServiceTest, CommandLineClientExitCodes) {
  // The command, its input, its exit status and the start of its standard error.
  using Case = std::tuple<const char*, std::string, int, std::string>;
  for (const auto& [command, input, exitCode, err] :
       {Case{"svg-to-view", circleSVG, 0, ""},
        Case{"svg-to-view", "", 1, "svgfigurer: Missing SVG text? (-22423)"},
        Case{"open-svg", "", 1, "svgfigurer: Missing SVG text? (-32423)"},
        Case{"open-svg", circleSVG, 0, ""}}) {
    const auto result = run({QStringLiteral("service"), QString::fromLatin1(command)}, input);
    EXPECT_EQ(result.exitCode, exitCode) << command << result.err;
    EXPECT_TRUE(result.err.starts_with(err)) << result.err;
    if (exitCode == 0 && std::string_view(command) == "svg-to-view") {
      EXPECT_EQ(result.out, std::get<std::string>(service.conversionService().svgToView(input)));
    }
  }
  EXPECT_EQ(controller.opened.size(), 1u);
  QDBusConnection::sessionBus().unregisterService(busName);
  EXPECT_EQ(run({QStringLiteral("service"), QStringLiteral("svg-to-view")}, circleSVG).exitCode, 3);
}

TEST_F(ServiceTest, OpenTakesTheSVGFileAndLogsTheOther) {
  const auto folder = fixture.folder.path();
  AppTest::writeFile(folder / "a.svg", circleSVG);
  AppTest::writeFile(folder / "b.txt", "text");
  QStringList documents;
  service.setDocumentFileOpener([&](const QString& path) { documents.append(path); });
  QSignalSpy finished(&service, &ApplicationService::handedFileFinished);
  const QStringList uris = {
      QString::fromStdString(SVGFigurerApp::addressForLocalPath(folder / "a.svg")),
      QString::fromStdString(SVGFigurerApp::addressForLocalPath(folder / "b.txt")),
      QString::fromStdString(SVGFigurerApp::addressForLocalPath(folder / "c.svgfigurer"))};
  EXPECT_EQ(call(applicationInterface, "Open", {uris, QVariantMap()}).type(),
            QDBusMessage::ReplyMessage);
  waitForHandedFiles(finished, 1);
  ASSERT_EQ(controller.opened.size(), 1u);
  EXPECT_EQ(controller.opened[0].svg, circleSVG);
  EXPECT_TRUE(fixture.log.contains(CoreS::LogLevel::log, "  cannot open non-SVG file: b.txt"));
  EXPECT_EQ(documents, QStringList{QString::fromStdString((folder / "c.svgfigurer").string())});
}

TEST_F(ServiceTest, FilesHandedInTogetherConvertConcurrentlyAndAllOpen) {
  constexpr int count = 3;
  std::atomic<int> started = 0;
  std::atomic<bool> allTogether = true;
  // Each read waits until all have started: reads that ran one after another would not meet.
  service.setBackgroundReadHookForTesting([&](const std::string&) {
    ++started;
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (started < count) {
      if (std::chrono::steady_clock::now() > deadline) {
        allTogether = false;
        return;
      }
      std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
  });
  QStringList paths;
  for (int i = 0; i < count; ++i) {
    const auto path = fixture.folder.path() / ("f" + std::to_string(i) + ".svg");
    AppTest::writeFile(path, circleSVG);
    paths.append(QString::fromStdString(path.string()));
  }
  QSignalSpy finished(&service, &ApplicationService::handedFileFinished);
  service.openFiles(paths);
  waitForHandedFiles(finished, count);
  EXPECT_TRUE(allTogether);
  EXPECT_EQ(controller.opened.size(), std::size_t(count));
  EXPECT_EQ(fixture.log.count("  open SVG:"), std::size_t(count));
}

TEST_F(ServiceTest, SecondLaunchHandsItsFilesToTheFirst) {
  const auto path = fixture.folder.path() / "second.svg";
  AppTest::writeFile(path, circleSVG);
  QSignalSpy finished(&service, &ApplicationService::handedFileFinished);
  EXPECT_TRUE(handOffToRunningInstance({QString::fromStdString(path.string())}));
  waitForHandedFiles(finished, 1);
  ASSERT_EQ(controller.opened.size(), 1u);
  EXPECT_EQ(controller.opened[0].svg, circleSVG);
  EXPECT_TRUE(handOffToRunningInstance({}));
  EXPECT_EQ(activations, 1);
  QDBusConnection::sessionBus().unregisterService(busName);
  EXPECT_FALSE(handOffToRunningInstance({}));
}

}  // namespace
