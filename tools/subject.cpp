#include "subject.h"

namespace orvane {

subject::subject(const kernel_row& row, const library& in)
    : row(row), one(row, in), reference(extended_reference_of(row)),
      wide(plan_of(row, width), in.address(plan_of(row, width).symbol)) {
    arguments.assign(row.arguments(), words(width));
    for (int j = 0; j < row.results() + row.has_out(); j++)
        if (!reference || (is_floating(row.result(j)) && (j == 0 || reference->second))) of_interest.push_back(j);
}

const std::vector<words>& subject::operator()(const lane* x) {
    for (int i = 0; i < width; i++)
        for (size_t j = 0; j < arguments.size(); j++)
            arguments[j][i] = x[i][j];
    wide(arguments, results);
    return results;
}

void subject::errors(const lane* x, error_measure m, double* error) {
    (*this)(x);
    for (int i = 0; i < width; i++) {
        error[i] = 0;
        if (!reference && !exact(row, x[i].data())) continue;
        const long double a = value_of(row.argument(0), x[i][0]);
        const long double b = row.arguments() > 1 ? value_of(row.argument(1), x[i][1]) : 0;
        for (int j : of_interest) {
            double e;
            if (reference)
                e = error_of(m, row.result(j), results[j][i], j ? reference->second(a, b) : reference->value(a, b));
            else e = error_in(m, exact, j, row.result(j), results[j][i]);
            if (std::isfinite(e)) error[i] = std::max(error[i], e);
        }
    }
}

lane_path subject::path_of(const lane& x) {
    one({x.begin(), x.end()});
    return one.path();
}

double subject::decided(const lane& x, error_measure m) {
    one({x.begin(), x.end()});
    return one.error(exact, m);
}

} // namespace orvane
