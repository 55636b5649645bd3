#include "data/records.h"

#include "targets.h"

void fuzz::records(std::string_view bytes) {
    accepts([&] {
        data::RecordReader reader(bytes);
        std::size_t fields = 0;
        for (int line = 1; !reader.at_end(); line = reader.line()) {
            const std::string field = reader.next();
            assert(++fields <= bytes.size());
            assert(reader.line() >= line);
            assert(field.find_first_of("\r\n") == std::string::npos);
            std::string without_quotes = field;
            std::erase(without_quotes, '"');
            assert(data::RecordReader(data::quoted(field)).next() == without_quotes);
        }
    });
}
