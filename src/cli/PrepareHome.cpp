#include "cli/PrepareHome.h"

#include "app/SamplePeople.h"
#include "platform/DesktopDeviceFiles.h"
#include "store/pim/PimStore.h"

namespace quill {

Places PlacesOf(const CommandLine& line, const QProcessEnvironment& environment) {
  if (line.Home) return HomePlaces(*line.Home, environment);
  if (line.Demo) return HomePlaces(SampleHome(environment), environment);
  return UserPlaces(environment);
}

std::optional<Places> PrepareHome(const CommandLine& line, const QProcessEnvironment& environment,
                                  const Console& console) {
  const Places places = PlacesOf(line, environment);
  QString problem = MakeFolders(places);
  if (problem.isEmpty() && line.Demo) {
    PimStore store(places.StoreFile);
    DesktopDeviceFiles files(DeviceRootsOf(places));
    problem = FillWithSamplePeople(store, files);
  }
  if (problem.isEmpty()) return places;
  Complain(console, problem);
  return std::nullopt;
}

}  // namespace quill
