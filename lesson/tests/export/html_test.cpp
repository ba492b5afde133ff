#include "lesson/export/html.hpp"

#include <gtest/gtest.h>

namespace lesson
{

namespace
{

TEST(HtmlTest, EachSpanIsTypeset)
{
    struct Case {
        Spans line;
        const char* html;
    };
    const Case cases[] = {
        {line("1 < 2 & \"so\" > 0"), "1 &lt; 2 &amp; &quot;so&quot; &gt; 0"},
        {line(formula("H2SO4")), "H<sub>2</sub>SO<sub>4</sub>"},
        {line(formula("Al2(SO4)3")), "Al<sub>2</sub>(SO<sub>4</sub>)<sub>3</sub>"},
        {line(formula("Na2CO3.10H2O")), "Na<sub>2</sub>CO<sub>3</sub>·10H<sub>2</sub>O"},
        {line(formula("C12H22O11")), "C<sub>12</sub>H<sub>22</sub>O<sub>11</sub>"},
        {line(formula("2HCl")), "2HCl"},
        {line(formula("NaCl")), "NaCl"},
        {line(formula("Ca(OH)2")), "Ca(OH)<sub>2</sub>"},
        {line(ionSpan("SO4", "2-")), "SO<sub>4</sub><sup>2−</sup>"},
        {line(ionSpan("Na", "+")), "Na<sup>+</sup>"},
        {line(quantity("c")), "<i>c</i>"},
        {line(quantity("V", "", "1")), "<i>V</i><sub>1</sub>"},
        {line(quantity("n", "Na2CO3")), "<i>n</i>(Na<sub>2</sub>CO<sub>3</sub>)"},
        {line(number("0.0456")), "0.0456"},
        {line(number("5.00e-5")), "5.00\u202F×\u202F10<sup>−5</sup>"},
        {line(measure("250", "mL"), " of ", Span(Span::Kind::name, "aluminium")),
         "250\u202FmL of aluminium"},
        {line("in ", unit("mol/L"), "."), "in mol/L."},
        {line(measure("25.0", "cm3")), "25.0\u202Fcm<sup>3</sup>"},
        {line(measure("0.500", "mol dm-3")), "0.500\u202Fmol dm<sup>−3</sup>"},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(htmlOf(one.line), one.html);
    }
}

TEST(HtmlTest, FractionsStandOnTheLine)
{
    struct Case {
        Span fraction;
        const char* html;
    };
    const Case cases[] = {
        {fraction(line(quantity("m")), line(quantity("M"))), "<i>m</i>/<i>M</i>"},
        {fraction(line(number("1")), line(number("2"))), "<sup>1</sup>⁄<sub>2</sub>"},
        {fraction(line(number("4.44")), line(number("2"))), "4.44/2"},
        {fraction(line(number("12.30"), " + ", number("12.35")), line(number("2"))),
         "(12.30 + 12.35)/2"},
        {fraction(line(number("5"), " − ", number("2")), line(number("3"))), "(5 − 2)/3"},
        {fraction(line(number("0.500"), " × ", number("40.0")), line(number("250"))),
         "0.500 × 40.0/250"},
        {fraction(line(quantity("n")), line(quantity("c"), quantity("V"))),
         "<i>n</i>/(<i>c</i><i>V</i>)"},
        {fraction(line(number("2.5")), line(number("5.0e-3"))),
         "2.5/(5.0\u202F×\u202F10<sup>−3</sup>)"},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(htmlOf({one.fraction}), one.html);
    }
}

} // namespace

} // namespace lesson
