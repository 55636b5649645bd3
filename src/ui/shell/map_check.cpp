#include "shell/map_check.h"

#include "data/run_time_error.h"

namespace shell {

namespace {

void check_was_read(const std::optional<data::Place>& problem) {
    if (problem)
        throw data::RunTimeError(data::ErrorNumber::path_file_access, *problem);
}

} // namespace

std::vector<Problem> check_on_map(const Session& session, const map::Maps& maps,
                                  const map::MapImage& id_map, map::ProvincePlaces& places,
                                  const ProvinceLines& lines) {
    const auto& index = places.index();
    check_was_read(places.problem());
    map::MapReader reader(id_map);
    const QSize size = id_map.size();
    auto problems = check_places(session.provinces, session.language,
                                 {size.width(), size.height(), maps, index,
                                  [&reader](int x, int y) {
                                      return reader.province_at({x, y});
                                  }},
                                 lines);
    check_was_read(reader.problem());
    return problems;
}

} // namespace shell
