#include <gtest/gtest.h>

#include "generators/hub.h"

// Fixed codes with their exact texts: a change here changes every stored problem.
namespace {
struct Golden { const char* code; const char* statement; const char* solution; };
const Golden kGolden[] = {
    {"0011230017000301",
     "Calculate mean, median, mode, standard deviation and bar chart based on the following table, where &"
     "+I&FA&-I_i denotes the absolute frequency of each value &+Ix&-I_i.&LF&SP=10:&BC=0;0;0:&FF=REC,28.2,5"
     ".7:&BC=230;230;250:&FF=REC,28.2,5.5:&SP=11:&+Ix&-I_i&SP=20:&+I&FA&-I_i&LF&SP=11:29&SP=20:4&LF&SP=11:"
     "31&SP=20:7&LF&SP=11:33&SP=20:2&LF&SP=11:35&SP=20:6&LF&SP=11:37&SP=20:3&LF&SP=11:39&SP=20:5&LF&SP=10:"
     "&BC=0;0;0:&FF=REC,28.2,0.2: &LF",
     "&SP=10: #SED(&+Ix&-I#SED) = 33&.89    &+IMe&-I = 35    &+IMo&-I = 31    &+I&DT&-I = 3&.46&LF&SP=10:&"
     "FS=9:&+I&FA&-I_i &LF&SP=10:7&LF&SP=10:6&LF&SP=10:5&LF&SP=10:4&LF&SP=10:3&LF&SP=10:2&LF&SP=10:1&LF&SP"
     "=12:&BC=96;96;128:&FF=REC,0.2,-28:&FF=REC,36,0.2:&SP=42:&FF=REC,-36,0.2:&FF=REC,3,0.2:&BC=80;200;80:"
     "&SP=17:&FF=REC,-3,-16:&SP=22:&FF=REC,-3,-28:&SP=27:&FF=REC,-3,-8:&SP=32:&FF=REC,-3,-24:&SP=37:&FF=RE"
     "C,-3,-12:&SP=42:&FF=REC,-3,-20:&LF&SP=15:29&SP=20:31&SP=25:33&SP=30:35&SP=35:37&SP=40:39 &+Ix&-I_i&F"
     "S=12:&LF"},
    {"0010004321000503",
     "Calculate mean, median, mode, standard deviation and bar chart based on the following table, where &"
     "+I&FA&-I_i denotes the absolute frequency of each value &+Ix&-I_i.&LF&SP=10:&BC=0;0;0:&FF=REC,28.2,5"
     ".7:&BC=230;230;250:&FF=REC,28.2,5.5:&SP=11:&+Ix&-I_i&SP=20:&+I&FA&-I_i&LF&SP=11:2&SP=20:8&LF&SP=11:-"
     "8&SP=20:5&LF&SP=11:-18&SP=20:6&LF&SP=11:-28&SP=20:7&LF&SP=10:&BC=0;0;0:&FF=REC,28.2,0.2: &LF",
     "&SP=10: #SED(&+Ix&-I#SED) = -12&.62    &+IMe&-I = -13    &+IMo&-I = 2    &+I&DT&-I = 11&.84&LF&SP=10"
     ":&FS=9:&+I&FA&-I_i &LF&SP=10:8&LF&SP=10:7&LF&SP=10:6&LF&SP=10:5&LF&SP=10:4&LF&SP=10:3&LF&SP=10:2&LF&"
     "SP=10:1&LF&SP=12:&BC=96;96;128:&FF=REC,0.2,-32:&FF=REC,24,0.2:&SP=32:&FF=REC,-24,0.2:&FF=REC,3,0.2:&"
     "BC=80;200;80:&SP=17:&FF=REC,-3,-32:&SP=22:&FF=REC,-3,-20:&SP=27:&FF=REC,-3,-24:&SP=32:&FF=REC,-3,-28"
     ":&LF&SP=15:2&SP=20:-8&SP=25:-18&SP=30:-28 &+Ix&-I_i&FS=12:&LF"},
    {"0012000001001010",
     "Calculate mean, median, mode, standard deviation and bar chart based on the following table, where &"
     "+I&FA&-I_i denotes the absolute frequency of each value &+Ix&-I_i.&LF&SP=10:&BC=0;0;0:&FF=REC,28.2,5"
     ".7:&BC=230;230;250:&FF=REC,28.2,5.5:&SP=11:&+Ix&-I_i&SP=20:&+I&FA&-I_i&LF&SP=11:22&SP=20:4&LF&SP=11:"
     "17&SP=20:3&LF&SP=11:12&SP=20:6&LF&SP=11:7&SP=20:2&LF&SP=11:2&SP=20:9&LF&SP=10:&BC=0;0;0:&FF=REC,28.2"
     ",0.2: &LF",
     "&SP=10: #SED(&+Ix&-I#SED) = 10&.13    &+IMe&-I = 12    &+IMo&-I = 2    &+I&DT&-I = 7&.47&LF&SP=10:&F"
     "S=9:&+I&FA&-I_i &LF&SP=10:9&LF&SP=10:8&LF&SP=10:7&LF&SP=10:6&LF&SP=10:5&LF&SP=10:4&LF&SP=10:3&LF&SP="
     "10:2&LF&SP=10:1&LF&SP=12:&BC=96;96;128:&FF=REC,0.2,-36:&FF=REC,30,0.2:&SP=37:&FF=REC,-30,0.2:&FF=REC"
     ",3,0.2:&BC=220;90;90:&SP=17:&FF=REC,-3,-16:&SP=22:&FF=REC,-3,-12:&SP=27:&FF=REC,-3,-24:&SP=32:&FF=RE"
     "C,-3,-8:&SP=37:&FF=REC,-3,-36:&LF&SP=15:22&SP=20:17&SP=25:12&SP=30:7&SP=35:2 &+Ix&-I_i&FS=12:&LF"},
    {"0020004444000101",
     "Calculate mean, median, mode, standard deviation, 20th percentile and histogram chart based on the f"
     "ollowing table, where &+I&FA&-I_i denotes the absolute frequency:&LF&SP=10:&BC=0;0;0:&FF=REC,38.8,5."
     "7:&BC=230;230;250:&FF=REC,38.8,5.5:&SP=11:Interval&SP=23:&+I&FA&-I_i&LF&SP=11:[50, 63)&SP=23:2&LF&SP"
     "=11:[63, 76)&SP=23:5&LF&SP=11:[76, 89)&SP=23:6&LF&SP=11:[89, 102)&SP=23:3&LF&SP=11:[102, 115)&SP=23:"
     "8&LF&SP=11:[115, 128)&SP=23:7&LF&SP=10:&BC=0;0;0:&FF=REC,38.8,0.2: &LF",
     "&SP=10: #SED(&+Ix&-I#SED) = 95&.5    &+IMe&-I = 99&.83    &+IMo&-I = 112&.83    &+I&DT&-I = 20&.88&L"
     "F&SP=10:20th percentile = 73&.92&LF&SP=10:&FS=9:&+I&FA&-I_i &LF&SP=10:8&LF&SP=10:7&LF&SP=10:6&LF&SP="
     "10:5&LF&SP=10:4&LF&SP=10:3&LF&SP=10:2&LF&SP=10:1&LF&SP=12:&BC=96;96;128:&FF=REC,0.2,-32:&FF=REC,28.8"
     ",0.2:&SP=36:&FF=REC,-28.8,0.2:&FF=REC,3,0.2:&BC=80;200;80:&SP=16:&FF=REC,-6.5,-8:&SP=20:&FF=REC,-6.5"
     ",-20:&SP=24:&FF=REC,-6.5,-24:&SP=28:&FF=REC,-6.5,-12:&SP=32:&FF=REC,-6.5,-32:&SP=36:&FF=REC,-6.5,-28"
     ":&LF&SP=12:50&SP=16:63&SP=20:76&SP=24:89&SP=28:102&SP=32:115&SP=36:128 &+Ix&-I_i&FS=12:&LF"},
    {"0020108000000202",
     "Calculate mean, median, mode, standard deviation, percentage of data below &+Ix&-I& =& 103 and histo"
     "gram chart based on the following table, where &+I&FA&-I_i denotes the absolute frequency:&LF&SP=10:"
     "&BC=0;0;0:&FF=REC,38.8,5.7:&BC=230;230;250:&FF=REC,38.8,5.5:&SP=11:Interval&SP=23:&+I&FA&-I_i&LF&SP="
     "11:[106, 125)&SP=23:6&LF&SP=11:[87, 106)&SP=23:5&LF&SP=11:[68, 87)&SP=23:7&LF&SP=11:[49, 68)&SP=23:3"
     "&LF&SP=11:[30, 49)&SP=23:4&LF&SP=10:&BC=0;0;0:&FF=REC,38.8,0.2: &LF",
     "&SP=10: #SED(&+Ix&-I#SED) = 82&.06    &+IMe&-I = 82&.93    &+IMo&-I = 80&.67    &+I&DT&-I = 25&.93&L"
     "F&SP=10:Percentage of data below &+Ix&-I& =& 103: 72&.84%&LF&SP=10:&FS=9:&+I&FA&-I_i &LF&SP=10:7&LF&"
     "SP=10:6&LF&SP=10:5&LF&SP=10:4&LF&SP=10:3&LF&SP=10:2&LF&SP=10:1&LF&SP=12:&BC=96;96;128:&FF=REC,0.2,-2"
     "8:&FF=REC,24,0.2:&SP=32:&FF=REC,-24,0.2:&FF=REC,3,0.2:&BC=220;90;90:&SP=16:&FF=REC,-6.5,-16:&SP=20:&"
     "FF=REC,-6.5,-12:&SP=24:&FF=REC,-6.5,-28:&SP=28:&FF=REC,-6.5,-20:&SP=32:&FF=REC,-6.5,-24:&LF&SP=12:30"
     "&SP=16:49&SP=20:68&SP=24:87&SP=28:106&SP=32:125 &+Ix&-I_i&FS=12:&LF"},
    {"0020455555000404",
     "Calculate mean, median, mode, standard deviation, percentage of data below &+Ix&-I& =& 75 and histog"
     "ram chart based on the following table, where &+I&FA&-I_i denotes the absolute frequency:&LF&SP=10:&"
     "BC=0;0;0:&FF=REC,38.8,5.7:&BC=230;230;250:&FF=REC,38.8,5.5:&SP=11:Interval&SP=23:&+I&FA&-I_i&LF&SP=1"
     "1:[55, 66)&SP=23:7&LF&SP=11:[66, 77)&SP=23:3&LF&SP=11:[77, 88)&SP=23:5&LF&SP=11:[88, 99)&SP=23:2&LF&"
     "SP=10:&BC=0;0;0:&FF=REC,38.8,0.2: &LF",
     "&SP=10: #SED(&+Ix&-I#SED) = 72&.79    &+IMe&-I = 71&.5    &+IMo&-I = 62    &+I&DT&-I = 11&.86&LF&SP="
     "10:Percentage of data below &+Ix&-I& =& 75: 55&.61%&LF&SP=10:&FS=9:&+I&FA&-I_i &LF&SP=10:7&LF&SP=10:"
     "6&LF&SP=10:5&LF&SP=10:4&LF&SP=10:3&LF&SP=10:2&LF&SP=10:1&LF&SP=12:&BC=96;96;128:&FF=REC,0.2,-28:&FF="
     "REC,19.2,0.2:&SP=28:&FF=REC,-19.2,0.2:&FF=REC,3,0.2:&BC=220;90;90:&SP=16:&FF=REC,-6.5,-28:&SP=20:&FF"
     "=REC,-6.5,-12:&SP=24:&FF=REC,-6.5,-20:&SP=28:&FF=REC,-6.5,-8:&LF&SP=12:55&SP=16:66&SP=20:77&SP=24:88"
     "&SP=28:99 &+Ix&-I_i&FS=12:&LF"},
    {"0030008888000302",
     "Below is a table of  &+Ix&-I  and  &+Iy&-I values.&LF&SP=10:&BC=0;0;0:&FF=REC,28.2,5.7:&BC=230;230;2"
     "50:&FF=REC,28.2,5.5:&SP=11:&+Ix&-I_i&SP=20:&+Iy&-I_i&LF&SP=11:4&SP=20:30&LF&SP=11:18&SP=20:48&LF&SP="
     "11:28&SP=20:57&LF&SP=11:40&SP=20:70&LF&SP=11:50&SP=20:77&LF&SP=10:&BC=0;0;0:&FF=REC,28.2,0.2: &LF&+B"
     "a)&-B Calculate the means and standard deviations of  &+Ix&-I  and  &+Iy&-I  and the covariance.&LF&"
     "+Bb)&-B Find the coefficient of correlation and the regression line  &+Iy = f (x)&-I  (least squares"
     " method).&LF&+Bc)&-B Estimate the value of  #AND(&+Iy&-I#AND)  if  #AND(&+Ix&-I#AND) = 47.&LF",
     "&SP=10:&+Ba)&-B  #SED(&+Ix&-I#SED) = 28    #SED(&+Iy&-I#SED) = 56&.4    &+I&DT_x&-I = 16&.15    &+I&"
     "DT_y&-I = 16&.6    &+I&DT_x_y&-I = 266&.8&LF&SP=10:&+Bb)&-B  &+Ir&-I = 0&.9954    &+Iy&-I& =& 1&.023"
     "&+Ix&-I& +& 27&.7558&LF&SP=10:&+Bc)&-B  #AND(&+Iy&-I#AND) = 75&.84&LF"},
    {"0031000001000101",
     "The table shows the height &+Ix&-I  in centimeters for a sample of people and their body mass  &+Iy&"
     "-I  in kilograms.&LF&SP=10:&BC=0;0;0:&FF=REC,28.2,5.7:&BC=230;230;250:&FF=REC,28.2,5.5:&SP=11:&+Ix&-"
     "I_i&SP=20:&+Iy&-I_i&LF&SP=11:148&SP=20:49&LF&SP=11:156&SP=20:61&LF&SP=11:164&SP=20:76&LF&SP=11:176&S"
     "P=20:85&LF&SP=11:188&SP=20:99&LF&SP=10:&BC=0;0;0:&FF=REC,28.2,0.2: &LF&+Ba)&-B Find the means and st"
     "andard deviations of  &+Ix&-I  and  &+Iy&-I  and the covariance.&LF&+Bb)&-B Calculate the coefficien"
     "t of correlation and the regression line (least squares method).&LF&+Bc)&-B Estimate the body mass  "
     "#AND(&+Iy&-I#AND)  when the height  #AND(&+Ix&-I#AND)  is 162& cm.&LF",
     "&SP=10:&+Ba)&-B  #SED(&+Ix&-I#SED) = 166&.4    #SED(&+Iy&-I#SED) = 74    &+I&DT_x&-I = 14&.22    &+I"
     "&DT_y&-I = 17&.57    &+I&DT_x_y&-I = 247&.2&LF&SP=10:&+Bb)&-B  &+Ir&-I = 0&.9892    &+Iy&-I& =& 1&.2"
     "223&+Ix&-I& -& 129&.3924&LF&SP=10:&+Bc)&-B  #AND(&+Iy&-I#AND) = 68&.62 kg&LF"},
    {"0030002222000702",
     "In the following table  &+Ix&-I  denotes the age (in years) of a sample of trees; and  &+Iy&-I  deno"
     "tes their height in centimeters.&LF&SP=10:&BC=0;0;0:&FF=REC,28.2,5.7:&BC=230;230;250:&FF=REC,28.2,5."
     "5:&SP=11:&+Ix&-I_i&SP=20:&+Iy&-I_i&LF&SP=11:4&SP=20:88&LF&SP=11:13&SP=20:181&LF&SP=11:20&SP=20:274&L"
     "F&SP=11:28&SP=20:370&LF&SP=11:35&SP=20:459&LF&SP=10:&BC=0;0;0:&FF=REC,28.2,0.2: &LF&+Ba)&-B Calculat"
     "e the means and standard deviations of  &+Ix&-I  and  &+Iy&-I  and the covariance.&LF&+Bb)&-B Find t"
     "he coefficient of correlation and the regression line (least squares method).&LF&+Bc)&-B Estimate th"
     "e height  #AND(&+Iy&-I#AND)  if a tree is 28 years old.&LF",
     "&SP=10:&+Ba)&-B  #SED(&+Ix&-I#SED) = 20    #SED(&+Iy&-I#SED) = 274&.4    &+I&DT_x&-I = 10&.9    &+I&"
     "DT_y&-I = 131&.67    &+I&DT_x_y&-I = 1434&LF&SP=10:&+Bb)&-B  &+Ir&-I = 0&.9992    &+Iy&-I& =& 12&.07"
     "07&+Ix&-I& +& 32&.9859&LF&SP=10:&+Bc)&-B  #AND(&+Iy&-I#AND) = 370&.97 cm&LF"},
    {"0030003003000101",
     "The table shows the age &+Ix&-I  in days for a sample of wild birds and their body mass  &+Iy&-I  in"
     " grams.&LF&SP=10:&BC=0;0;0:&FF=REC,28.2,5.7:&BC=230;230;250:&FF=REC,28.2,5.5:&SP=11:&+Ix&-I_i&SP=20:"
     "&+Iy&-I_i&LF&SP=11:12&SP=20:36&LF&SP=11:23&SP=20:75&LF&SP=11:35&SP=20:114&LF&SP=11:42&SP=20:153&LF&S"
     "P=10:&BC=0;0;0:&FF=REC,28.2,0.2: &LF&+Ba)&-B Find the means and standard deviations of  &+Ix&-I  and"
     "  &+Iy&-I  and the covariance.&LF&+Bb)&-B Calculate the coefficient of correlation and the regressio"
     "n line (least squares method).&LF&+Bc)&-B Estimate the body mass  #AND(&+Iy&-I#AND)  for a bird that"
     " is 37 days old.&LF",
     "&SP=10:&+Ba)&-B  #SED(&+Ix&-I#SED) = 28    #SED(&+Iy&-I#SED) = 94&.5    &+I&DT_x&-I = 11&.47    &+I&"
     "DT_y&-I = 43&.6    &+I&DT_x_y&-I = 497&.25&LF&SP=10:&+Bb)&-B  &+Ir&-I = 0&.9945    &+Iy&-I& =& 3&.78"
     "14&+Ix&-I& -& 11&.3783&LF&SP=10:&+Bc)&-B  #AND(&+Iy&-I#AND) = 128&.53 g&LF"},
    {"0044444444000303",
     "In a country the weight (kg) of the people follows the normal distribution  &+IN&-I(65,& 7). We stud"
     "y a random sample of 111 persons.  Calculate:&LF&SP=5:&+Ba)&-B Probability that the average weight o"
     "f the sample takes a value below 66&.13 kg.&LF",
     "&SP=10:&+Ba)&-B 95&.55%&LF"},
    {"0040009999000101",
     "In a farming region the weight of the tangerines follows a normal distribution with a mean of& 106& "
     "g  and a standard deviation of& 10& g. We select at random a fruit. Calculate:&LF&SP=5:&+Ba)&-B Prob"
     "ability that the weight takes a value exceeding 126 g.&LF&SP=5:&+Bb)&-B Probability that the weight "
     "takes a value between 87 g  and 114 g.&LF",
     "&SP=10:&+Ba)&-B 2&.28%      &+Bb)&-B 75&.94%&LF"},
    {"0040007777001010",
     "In a country the weight (kg) of the people follows the normal distribution  &+IN&-I(72,& 16). We stu"
     "dy a random sample of 187 persons.  Calculate:&LF&SP=5:&+Ba)&-B Probability that the average weight "
     "of the sample takes a value below 72&.82 kg.&LF",
     "&SP=10:&+Ba)&-B 75&.83%&LF"},
};
} // namespace

TEST(PesGolden, FixedCodes) {
    GeneratorHub hub;
    for (const Golden& g : kGolden) {
        std::string statement, solution;
        hub.RunGenerator("KVOL_MATH_PES", g.code, statement, solution);
        EXPECT_EQ(statement, g.statement) << g.code;
        EXPECT_EQ(solution, g.solution) << g.code;
    }
}
