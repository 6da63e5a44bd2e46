#include "driver/Session.h"

#include <QTemporaryDir>

#include <unistd.h>

#include <csignal>
#include <cstdio>

#include "app/Program.h"
#include "app/StoreSettings.h"
#include "app/ui/RunShell.h"
#include "driver/Driver.h"
#include "driver/FaultyFiles.h"
#include "driver/FaultyStore.h"
#include "driver/ScriptedInfrared.h"
#include "driver/SettableClock.h"
#include "driver/SilentSounds.h"
#include "driver/StoreNotice.h"
#include "platform/JsonRegistry.h"
#include "platform/Services.h"
#include "store/pim/PimStore.h"

namespace quill::driver {

namespace {

int Fail(const QString& problem) {
  std::fprintf(stderr, "quill-driver: %s\n", qUtf8Printable(problem));
  return 2;
}

int PrintHelp() {
  std::fputs(qUtf8Printable(OptionsHelp()), stdout);
  return 0;
}

QStringList ArgumentsOf(int argc, char** argv) {
  QStringList arguments;
  for (int i = 1; i < argc; ++i) arguments << QString::fromLocal8Bit(argv[i]);
  return arguments;
}

}  // namespace

int RunSession(const OperationTable& operations, int& argc, char** argv) {
  const auto [options, problem, asksHelp] = ParseOptions(ArgumentsOf(argc, argv));
  if (asksHelp) return PrintHelp();
  if (!problem.isEmpty()) return Fail(QStringLiteral("wrong option: ") + problem);
  const QTemporaryDir fresh;
  const Places places = HomePlaces(options.Home.isEmpty() ? fresh.path() : options.Home,
                                   QProcessEnvironment::systemEnvironment());
  if (const QString trouble = MakeFolders(places); !trouble.isEmpty()) return Fail(trouble);

  FaultTable faults;
  for (const NamedFault& fault : options.Faults) faults.Switch(fault.Name, fault.What);
  SettableClock clock;
  clock.Set(options.Now);
  PimStore store(places.StoreFile, ReadStoreSettings(JsonRegistry(places.SettingsFile)));
  ProgramOptions programOptions;
  programOptions.Where = places;
  programOptions.AskedScale = options.Scale;
  programOptions.Store = std::make_unique<FaultyStore>(store, faults);
  Program program(std::move(programOptions));
  g_services.Clock = &clock;
  FaultyFiles files(*g_services.Files, faults);
  g_services.Files = &files;
  SilentSounds sounds;
  g_services.Sounds = &sounds;
  ScriptedInfrared infrared(program.Store(), faults, NotifyOfOthersChange);
  if (options.Infrared == InfraredChoice::Scripted) g_services.Infrared = &infrared;

  // A reader that goes away ends the script, not the process.
  std::signal(SIGPIPE, SIG_IGN);
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  Driver driver({operations, clock, faults, sounds, store, places.StoreFile, infrared},
                STDIN_FILENO, STDOUT_FILENO);
  driver.FollowApplications();
  const int code = RunShell(program, argc, argv);
  driver.Finish();
  return code;
}

}  // namespace quill::driver
