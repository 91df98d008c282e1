// The markup written as LaTeX: each construct, and balanced output whatever comes in.
#include <gtest/gtest.h>

#include "export/latex_export.h"

namespace {
struct Latex : public ::testing::Test {
    TypesetterState symbols;
    LatexContext context;
    void SetUp() override { context.symbols = &symbols; }
    std::string Of(const std::string& markup) { return MarkupToLatex(context, markup); }
};

// Braces balance (escaped ones aside) and math shifts come in pairs.
bool Balanced(const std::string& latex) {
    int depth = 0, dollars = 0;
    for (std::size_t i = 0; i < latex.size(); ++i) {
        const char c = latex[i];
        if (c == '\\') {
            ++i;
            continue;
        }
        if (c == '%') {
            while (i < latex.size() && latex[i] != '\n') ++i;
            continue;
        }
        if (c == '{') ++depth;
        if (c == '}') --depth;
        if (c == '$') ++dollars;
        if (depth < 0) return false;
    }
    return depth == 0 && dollars % 2 == 0;
}

bool Has(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }
} // namespace

TEST_F(Latex, AFractionIsADisplayFractionOfItsParts) {
    const std::string t = Of("#COC(1#N)(2#COC)");
    EXPECT_TRUE(Has(t, "\\dfrac{\\text{1}}{\\text{2}}")) << t;
    EXPECT_TRUE(Balanced(t));
}

TEST_F(Latex, AFractionInAnExponentIsSmall) {
    const std::string t = Of("#POT(2#PB)(#COC(1#N)(3#COC)#POT)");
    EXPECT_TRUE(Has(t, "}^{{\\frac{\\text{1}}{\\text{3}}}}")) << t;
}

TEST_F(Latex, RootsKeepTheirIndex) {
    EXPECT_TRUE(Has(Of("#RAD(#RI(4#RI)x#RAD)"), "\\sqrt[\\text{4}]{\\text{x}}"));
    EXPECT_TRUE(Has(Of("#CUR(8#CUR)"), "\\sqrt[3]{\\text{8}}"));
    EXPECT_TRUE(Has(Of("#SQR(2#SQR)"), "\\sqrt{\\text{2}}"));
    EXPECT_TRUE(Has(Of("#RAD(x#RAD)"), "\\sqrt{\\text{x}}"));
}

TEST_F(Latex, AMatrixInParenthesesIsAPmatrixWithItsCells) {
    const std::string t = Of("#NES(()#RWS(C#RW1(1&|-2#RW1)#RW2(3&|4#RW2)#RWS)#NES)");
    EXPECT_TRUE(Has(t, "\\begin{pmatrix}")) << t;
    EXPECT_TRUE(Has(t, "\\text{1} & \\text{\\ensuremath{-}2} \\\\ \\text{3} & \\text{4}")) << t;
    EXPECT_TRUE(Balanced(t));
}

TEST_F(Latex, ASystemWithOneBraceIsCases) {
    const std::string t = Of("#NES({ #RWS(L#RW1(x+y=1#RW1)#RW2(x-y=3#RW2)#RWS)#NES)");
    EXPECT_TRUE(Has(t, "\\begin{cases}")) << t;
    EXPECT_TRUE(Balanced(t));
}

TEST_F(Latex, OtherDelimitersStretch) {
    const std::string t = Of("#NES(||x#NES)");
    EXPECT_TRUE(Has(t, "\\left| \\text{x} \\right|")) << t;
    EXPECT_TRUE(Has(Of("#NES([ y#NES)"), "\\left[ \\text{y} \\right.")) << Of("#NES([ y#NES)");
}

TEST_F(Latex, EntitiesBecomeMathSymbols) {
    const std::string t = Of("&alfa &<= &real&oo&pm&perte");
    for (const char* s : {"\\alpha", "\\leq", "\\mathbb{R}", "\\infty", "\\pm", "\\in"}) EXPECT_TRUE(Has(t, s)) << s;
}

TEST_F(Latex, ColoursBoldItalicAndSizes) {
    const std::string t = Of("&FC=Rojo:red&FC=Negro: black &+Bbold&-B &+Ix&-I &FS=16:big");
    EXPECT_TRUE(Has(t, "{\\color[RGB]{255,0,0} red}")) << t;
    EXPECT_TRUE(Has(t, "{\\bfseries bold}")) << t;
    EXPECT_TRUE(Has(t, "{\\itshape x}")) << t;
    EXPECT_TRUE(Has(t, "\\fontsize{16}{19.2}\\selectfont")) << t;
    EXPECT_TRUE(Has(t, " black ")) << t;
}

// In an italic run the letters lean and the digits, signs and brackets stand upright.
TEST_F(Latex, DigitsAndSignsStayUprightInItalicText) {
    const std::string t = Of("&+I2x+1=(y)&-I");
    EXPECT_TRUE(Has(t, "{\\upshape 2}x{\\upshape +}{\\upshape 1}{\\upshape =}{\\upshape (}y{\\upshape )}")) << t;
    EXPECT_FALSE(Has(Of("2x+1"), "upshape")) << Of("2x+1");
}

// A size set on one line holds on the lines after it, each set at that size and spacing,
// as the page sets a chart's ticks; a size set back ends it.
TEST_F(Latex, AFontSizeHoldsOnTheFollowingLines) {
    const std::string t = Of("a&FS=9:b&LF7&LF6&FS=12:&LFc");
    EXPECT_TRUE(Has(t, "{\\fontsize{9}{9.97pt}\\selectfont\\noindent\\strut {\\fontsize{9}{10.8}\\selectfont 7}\\par}")) << t;
    EXPECT_TRUE(Has(t, "\n\\noindent\\strut c\\par")) << t;
    EXPECT_EQ(t.rfind("\\noindent", 0), 0u) << "the first line has no size of its own: " << t;
    EXPECT_TRUE(Balanced(t)) << t;
}

TEST_F(Latex, SpecialCharactersAreEscaped) {
    const std::string t = Of("50% of $3 &&{x} ## a__b x^^2 ~\\");
    for (const char* s : {"50\\%", "\\$3", "\\&", "\\{x\\}", "\\#", "a\\_b", "x\\textasciicircum{}2",
                          "\\textasciitilde{}", "\\textbackslash{}"})
        EXPECT_TRUE(Has(t, s)) << s << " in " << t;
    EXPECT_TRUE(Balanced(t));
}

TEST_F(Latex, ScriptsAndPowersOfTen) {
    const std::string t = Of("a_2 x^3 3&E-05");
    EXPECT_TRUE(Has(t, "\\textsubscript{2}")) << t;
    EXPECT_TRUE(Has(t, "\\textsuperscript{3}")) << t;
    EXPECT_TRUE(Has(t, "$\\cdot 10^{-05}$")) << t;
}

TEST_F(Latex, TabsSetColumnsAcrossTheLine) {
    const std::string t = Of("a) 12&SP=50:b) 34");
    EXPECT_TRUE(Has(t, "\\makebox[0pt][l]{a) 12}\\hspace{0.5\\linewidth}b) 34")) << t;
}

TEST_F(Latex, LineEndsMakeParagraphsAndEmptyLinesStay) {
    const std::string t = Of("one&LF&LFtwo&LF");
    EXPECT_EQ(t, "\\noindent\\strut one\\par\n\\noindent\\strut\\par\n\\noindent\\strut two\\par\n");
}

TEST_F(Latex, MarksOverAndUnder) {
    EXPECT_TRUE(Has(Of("#VEC(AB#VEC)"), "\\overrightarrow{"));
    EXPECT_TRUE(Has(Of("#SEG(AB#SEG)"), "\\overline{"));
    EXPECT_TRUE(Has(Of("#UDL(AB#UDL)"), "\\underline{"));
    EXPECT_TRUE(Has(Of("#AND(ABC#AND)"), "\\widehat{"));
    EXPECT_TRUE(Has(Of("#ARC(AB#ARC)"), "\\overset{\\frown}{"));
    EXPECT_TRUE(Has(Of("#REC(x#REC)"), "\\boxed{"));
    EXPECT_TRUE(Has(Of("#TDX(x#TDX)"), "\\sfcancel{"));
}

TEST_F(Latex, IntegralsAndLimits) {
    const std::string t = Of("#INT(x_ &+Idx&-I#INT)");
    EXPECT_TRUE(Has(t, "\\displaystyle\\int")) << t;
    const std::string l = Of("#TST(lim#TS)(#ST1(&+Ix&-I &ars 2#ST1)#TST)");
    EXPECT_TRUE(Has(l, "\\lim\\limits_{")) << l;
    EXPECT_TRUE(Has(l, "\\rightarrow")) << l;
    const std::string h = Of("#TST(head#TS)(#ST1(one#ST1)#ST2(two#ST2)#TST)");
    EXPECT_TRUE(Has(h, "\\begin{array}[t]{@{}l@{}}")) << h;
    EXPECT_TRUE(Balanced(h));
}

TEST_F(Latex, WhatHasNoFormIsAVisibleComment) {
    const std::string t = Of("before #A6V(SSSSSS&EC=SDSDSD#A6V) after");
    EXPECT_TRUE(Has(t, "\n% a ring or chain figure has no LaTeX form here")) << t;
    EXPECT_TRUE(Has(t, "after"));
    ASSERT_EQ(context.leftOut.size(), 1u);
    EXPECT_EQ(context.leftOut[0], "#A6V(");
    EXPECT_TRUE(Balanced(t));
    const std::string box = Of("&BC=Amarillo:&FF=REC,0,10:text");
    EXPECT_TRUE(Has(box, "% a coloured band across the page (REC,0,10) is left out")) << box;
    const std::string bar = Of("&BC=0;0;255:&FF=REC,-3,-12:x");
    // A bar takes no height in its line: it rises over the lines above it, as on the page.
    EXPECT_TRUE(Has(bar, "\\smash{\\makebox[0pt][l]{\\color[RGB]{0,0,255}\\hspace*{-3mm}\\rule[\\ht\\strutbox]{3mm}{12mm}}}x"))
        << bar;
}

TEST_F(Latex, DamagedMarkupStaysBalanced) {
    for (const char* bad : {"#SQR(x", "#COC(a#COC)", "#NES((x", "&FS=14", "#RWS(C#RW2(x#RW2)#RWS)", "#POT(x#POT)",
                            "#IMG('x.gif'#IMG)", "{{{", "}}}", "#RAD(#RI(3x#RAD)", "#TST(x#TST)", "_", "^", "&", "#"}) {
        const std::string t = Of(bad);
        EXPECT_TRUE(Balanced(t)) << bad << " gave " << t;
    }
    EXPECT_TRUE(Has(Of("#SQR(x"), "*ERROR*"));
}

TEST_F(Latex, AValueCodeWithoutColonEndsTheText) {
    const std::string t = Of("ab&FS=14cd");
    EXPECT_TRUE(Has(t, "ab"));
    EXPECT_FALSE(Has(t, "cd"));
}

TEST_F(Latex, PicturesAreIncludedBesideTheDocumentAtTheirSize) {
    context.pictureSize = [](const std::string& name, double& w, double& h) {
        if (name != "M_ANG.GIF") return false;
        w = 200;
        h = 100;
        return true;
    };
    const std::string t = Of("#IMG('m_ang.gif'DXmm=40:DYmm=-10:#IMG) and #IMG('none.gif'DXmm=20:DYmm=10:#IMG)");
    // Kept in proportion: 40 mm wide means 20 mm high.
    EXPECT_TRUE(Has(t, "\\includegraphics[width=40mm,height=20mm]{fig-m-ang-gif-m.png}")) << t;
    ASSERT_EQ(context.pictures.size(), 1u);
    EXPECT_TRUE(context.pictures[0].mirrored);
    EXPECT_EQ(context.pictures[0].name, "M_ANG.GIF");
    EXPECT_TRUE(Has(t, "% picture NONE.GIF not found")) << t;
    EXPECT_TRUE(Balanced(t));
}

TEST_F(Latex, TheDocumentHoldsTitleNumbersAndSolutionsInTheirPlace) {
    ApplicationState app;
    app.Settings.Title = "Week 3 & more";
    app.Settings.ProblemCount = 2;
    app.Settings.FirstProblemNumber = 5;
    app.Problems[1].Statement = "First 11";
    app.Problems[1].Solution = "Answer 22";
    app.Problems[2].Statement = "Second 33";
    app.Problems[2].Solution = "Answer 44";
    app.Settings.SolutionPosition = 1;
    std::string doc = CollectionToLatex(app, context);
    EXPECT_TRUE(Has(doc, "Week 3 \\& more"));
    EXPECT_TRUE(Has(doc, "{5)}~") && Has(doc, "{6)}~")) << doc;
    EXPECT_LT(doc.find("First 11"), doc.find("Answer 22"));
    EXPECT_LT(doc.find("Answer 22"), doc.find("Second 33"));
    EXPECT_TRUE(Balanced(doc));

    app.Settings.SolutionPosition = 3;
    doc = CollectionToLatex(app, context);
    EXPECT_LT(doc.find("Second 33"), doc.find("\\newpage"));
    EXPECT_LT(doc.find("\\newpage"), doc.find("Answer 22"));
    EXPECT_TRUE(Has(doc, "Solutions:"));

    app.Settings.SolutionPosition = 0;
    doc = CollectionToLatex(app, context);
    EXPECT_FALSE(Has(doc, "Answer 22"));
}
