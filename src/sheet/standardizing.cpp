#include "sheet/standardizing.h"

#include "numbers/rounding.h"
#include "numbers/runtime_failure.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace dorvan {

namespace {

// The means of the variables.
std::vector<double> MeansOf(const FloatTable& values) {
    std::vector<double> means;
    for (std::int32_t variable = 1; variable <= values.Columns(); ++variable) {
        float sum = 0;
        for (std::int32_t record = 1; record <= values.Rows(); ++record) {
            sum += values(record, variable);
            if (!std::isfinite(sum)) throw RuntimeFailure(Failure::Overflow, "the sum of a variable");
        }
        means.push_back(double(sum) / values.Rows());
    }
    return means;
}

std::vector<double> DeviationsOf(const FloatTable& values, const std::vector<double>& means) {
    std::vector<double> deviations;
    for (std::int32_t variable = 1; variable <= values.Columns(); ++variable) {
        double squares = 0;
        for (std::int32_t record = 1; record <= values.Rows(); ++record) {
            const double difference = double(values(record, variable)) - means[std::size_t(variable - 1)];
            squares += difference * difference;
        }
        deviations.push_back(std::sqrt(squares / (values.Rows() - 1)));
    }
    return deviations;
}

} // namespace

void StandardizeByDeviation(FloatTable& values) {
    const std::vector<double> means = MeansOf(values);
    const std::vector<double> deviations = DeviationsOf(values, means);
    for (std::int32_t variable = 1; variable <= values.Columns(); ++variable) {
        const auto place = std::size_t(variable - 1);
        for (std::int32_t record = 1; record <= values.Rows(); ++record) {
            if (deviations[place] == 0)
                throw RuntimeFailure(Failure::DivisionByZero, "a variable that is always the same");
            float& value = values(record, variable);
            value = RoundToFloat((double(value) - means[place]) / deviations[place]);
        }
    }
}

void StandardizeToRange(FloatTable& values, const std::function<void()>& tellConstant) {
    for (std::int32_t variable = 1; variable <= values.Columns(); ++variable) {
        float max = values(1, variable);
        float min = max;
        for (std::int32_t record = 1; record <= values.Rows(); ++record) {
            const float value = values(record, variable);
            if (value > max) max = value;
            if (value < min) min = value;
        }
        for (std::int32_t record = 1; record <= values.Rows(); ++record) {
            float& value = values(record, variable);
            if (max == min)
                tellConstant();
            else
                value = RoundToFloat((double(value) - double(min)) / (double(max) - double(min)) * 100);
        }
    }
}

} // namespace dorvan
