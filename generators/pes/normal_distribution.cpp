#include <cmath>
#include <string>

#include "generators/pes/normal_law.h"
#include "generators/pes/pes_routines.h"
#include "generators/pes/pes_tables.h"
#include "mathservices/arithmetic.h"
#include "mathservices/number_markup.h"

namespace {
const char* const kFruits[] = {"oranges", "tangerines", "apples", "lemons", "grapefruits",
                               "nectarines", "pears", "peaches", "apricots", "mangoes"};
const char* const kProducts[] = {"mincers", "mixers", "deep fryers", "juicer", "microwave ovens",
                                 "refrigerators", "vitroceramics", "air conditioners", "fans", "epilators"};

std::string Law(double mean, double deviation) {
    return "&+IN&-I(" + NumberToMarkup(mean) + ",& " + NumberToMarkup(deviation) + ")";
}
} // namespace

// Routine 4: probabilities and quantiles of a normal law, in progressive difficulty.
// Types 1..4 (the first two thirds of a group): probabilities below, above and between
// limits of a law and the value with a given lower or upper probability, abstract or for
// the weight of a fruit. Types 5..7: the same for the mean of a sample, whose deviation is
// the law's over the root of the sample size. Limits are the mean plus or minus a
// multiple of the deviation, so that the standardised limits are short decimals.
void NormalDistribution(GeneratorWorkspace& ws) {
    const double groupSize = ws.GroupSize;
    const double percentage = std::floor(100 * ws.GroupIndex / groupSize);
    int type = percentage <= 66 ? 1 + ws.Seed % 4 : 5 + ws.Seed % 3;
    if (groupSize == 1) type = 1 + ws.Seed % 7;

    // The numbers of all types are drawn first, whatever the type.
    const double sampleSize = RandomInRange(ws, 4, 200, 1, 1);
    const double plainMean = RandomInRange(ws, 20, 900, 1, 1);
    const double spread = RandomInRange(ws, 3, 900, 1, 1);
    const double fruitMean = RandomInRange(ws, 90, 200, 1, 1);
    // The size of the sample of persons, or the mean life of a product.
    const double fifth = RandomInRange(ws, 22, 200, 1, 1);
    const double bodyMean = RandomInRange(ws, 50, 80, 1, 1);
    const double width = RandomInRange(ws, 15, 80, 1, 1);
    const double k1 = RandomInRange(ws, 0.5, 2.5, 0.1, 1);
    const double k2 = RandomInRange(ws, 0.5, 2.5, 0.1, 1);
    const double k3 = RandomInRange(ws, 0.5, 2.5, 0.1, 1);
    const double percent = RandomInRange(ws, 15, 95, 1, 1);
    const int word = static_cast<int>(RandomInRange(ws, 1, 10, 1, 1)) - 1;
    const double sign1 = Coin(ws, 0.5f) ? -1 : 1;
    const double sign2 = Coin(ws, 0.5f) ? -1 : 1;

    // Mean and deviation of the law, and of the variable the questions are about.
    double mean = plainMean;
    // A deviation of 5 % to 25 % of the mean.
    double deviation = std::fmax(1, RoundAtPosition(ws, plainMean * (0.05 + 0.2 * spread / 900), -1));
    double sample = 1;
    switch (type) {
    case 4: case 5:
        mean = fruitMean;
        deviation = Int(width / 4) + 2;
        if (type == 5) sample = sampleSize;
        break;
    case 6:
        mean = bodyMean;
        deviation = Int(width / 5) + 3;
        sample = fifth;
        break;
    case 7:
        mean = fifth;
        deviation = Int(width / 4) + 2;
        sample = sampleSize;
        break;
    default:
        break;
    }
    const double sampleDeviation = deviation / std::sqrt(sample);
    // A limit k deviations off the mean, written with one decimal (two for the mean of a
    // sample), and the probability below it.
    auto limit = [&](double k) {
        return sample > 1 ? RoundAtPosition(ws, mean + k * sampleDeviation, -3)
                          : RoundAtPosition(ws, mean + k * sampleDeviation, -2);
    };
    auto below = [&](double at) { return NormalCDF((at - mean) / sampleDeviation); };
    auto percentText = [&](double p) { return RoundedMarkup(ws, 100 * p, 2) + "%"; };
    auto valueText = [&](double x) { return "&+Ix&-I = " + RoundedMarkup(ws, x, 2); };

    const double first = limit(sign1 * k1);
    const double second = limit(sign2 * k2);
    const double low = limit(-k2);
    const double high = limit(k3);
    const std::string law = Law(mean, deviation);
    const std::string a = "&SP=5:&+Ba)&-B ";
    const std::string b = "&SP=5:&+Bb)&-B ";
    std::string answer = "&SP=10:&+Ba)&-B ";
    switch (type) {
    case 1:
        ws.Statement = "The random variable &+Ix&-I follows a normal distribution  " + law + ".  Calculate:&LF" + a +
                       "Probability that &+Ix&-I takes a value below " + NumberToMarkup(first) + ".&LF" + b +
                       "Probability that the variable takes a value above " + NumberToMarkup(second) + ".&LF" +
                       "&SP=5:&+Bc)&-B Probability that &+Ix&-I takes a value between " + NumberToMarkup(low) +
                       " and " + NumberToMarkup(high) + ".&LF";
        answer += percentText(below(first)) + "      &+Bb)&-B " + percentText(1 - below(second)) +
                  "      &+Bc)&-B " + percentText(below(high) - below(low));
        break;
    case 2:
        ws.Statement = "If the random variable &+Ix&-I follows a normal distribution  " + law + ". Find:&LF" + a +
                       "Probability that the variable takes a value exceeding " + NumberToMarkup(first) + ".&LF" +
                       b + "Value of &+Ix&-I that has a lower probability of " + NumberToMarkup(percent) + "%.&LF";
        answer += percentText(1 - below(first)) + "      &+Bb)&-B " +
                  valueText(mean + deviation * NormalInverse(percent / 100));
        break;
    case 3:
        ws.Statement = "The random variable  &+Ix&-I  follows a normal distribution with a mean of& " +
                       NumberToMarkup(mean) + " and a standard deviation of& " + NumberToMarkup(deviation) +
                       ". Calculate:&LF" + a + "Probability that &+Ix&-I takes a value below " +
                       NumberToMarkup(first) + ".&LF" + b + "Value of &+Ix&-I that has an upper probability of " +
                       NumberToMarkup(percent) + "%.&LF";
        answer += percentText(below(first)) + "      &+Bb)&-B " +
                  valueText(mean + deviation * NormalInverse(1 - percent / 100));
        break;
    case 4:
        ws.Statement = std::string("In a farming region the weight of the ") + kFruits[word] +
                       " follows a normal distribution with a mean of& " + NumberToMarkup(mean) +
                       "& g  and a standard deviation of& " + NumberToMarkup(deviation) +
                       "& g. We select at random a fruit. Calculate:&LF" + a +
                       "Probability that the weight takes a value exceeding " + NumberToMarkup(first) + " g.&LF" + b +
                       "Probability that the weight takes a value between " + NumberToMarkup(low) + " g  and " +
                       NumberToMarkup(high) + " g.&LF";
        answer += percentText(1 - below(first)) + "      &+Bb)&-B " + percentText(below(high) - below(low));
        break;
    case 5:
        ws.Statement = std::string("In a farming region the weight of the ") + kFruits[word] +
                       " follows the normal distribution  " + law + ". We study a random sample of " +
                       NumberToMarkup(sample) + " " + kFruits[word] + ".  Find:&LF" + a +
                       "Probability that the average weight of the sample takes a value exceeding " +
                       NumberToMarkup(first) + " g.&LF" + b +
                       "Probability that the average weight of the sample takes a value between " +
                       NumberToMarkup(low) + " g  and " + NumberToMarkup(high) + " g.&LF";
        answer += percentText(1 - below(first)) + "      &+Bb)&-B " + percentText(below(high) - below(low));
        break;
    case 6:
        ws.Statement = "In a country the weight (kg) of the people follows the normal distribution  " + law +
                       ". We study a random sample of " + NumberToMarkup(sample) + " persons.  Calculate:&LF" + a +
                       "Probability that the average weight of the sample takes a value below " +
                       NumberToMarkup(first) + " kg.&LF";
        answer += percentText(below(first));
        break;
    default:
        ws.Statement = std::string("We know that the ") + kProducts[word] +
                       " of a manufacturer has a life (in months) that follows the normal distribution  " + law +
                       ". We study a random sample of " + NumberToMarkup(sample) + " " + kProducts[word] +
                       ".  Calculate:&LF" + a + "Probability that the average life of the sample takes a value exceeding " +
                       NumberToMarkup(first) + " months.&LF";
        answer += percentText(1 - below(first));
        break;
    }
    ws.Solution = answer + "&LF";
}
