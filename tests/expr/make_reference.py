#!/usr/bin/env python3
"""Writes reference.txt: formulas and their values to 40 digits, by mpmath. Run by hand: make_reference.py > reference.txt

Arguments are taken as the doubles that their text reads as. A line "# ulp N" or "# relative X" sets the accuracy
that the formulas after it must reach.
"""
import mpmath as mp
from mpmath import mpf

mp.mp.dps = 60


def num(text):
    return mpf(float(text))


def rows(name, function, *cases):
    for case in cases:
        texts = case.split()
        value = mp.re(function(*[num(t) for t in texts]))
        print(f"{name}({','.join(texts)})\t{mp.nstr(value, 40, strip_zeros=True)}")


def stdev(*v):
    m = sum(v) / len(v)
    return mp.sqrt(sum((x - m) ** 2 for x in v) / (len(v) - 1))


def legendre(x, n):
    return mp.legendre(int(n), x)


def ein(x, n):
    return mp.expint(n, x)


def binom_cdf(k, n, p):
    return sum(mp.binomial(n, i) * p**i * (1 - p) ** (n - i) for i in range(int(k) + 1))


def hyp(a, b, c, x):
    return mp.hyp2f1(a, b, c, x)


print("# ulp 2")
small = ["1e-300", "-1e-8", "0.3", "1", "-2.5"]
rows("Sin", mp.sin, *small, "100", "1e6", "1e22")
rows("Cos", mp.cos, *small, "100", "1e6", "1e22")
rows("Tan", mp.tan, *small, "1.57", "1e6")
rows("csc", mp.csc, *small[1:], "1e6")
rows("sec", mp.sec, *small, "1.57")
rows("cot", mp.cot, *small[1:], "1.57")
rows("Asin", mp.asin, "1e-9", "0.5", "-0.99999999", "1")
rows("Acos", mp.acos, "1e-9", "0.5", "-0.99999999", "0.99999999999999")
rows("Atn", mp.atan, *small, "1e300")
rows("acsc", mp.acsc, "1.000000001", "-2", "1e300")
rows("asec", mp.asec, "1.000000001", "-2", "1e300", "-1.00000001")
rows("acot", lambda x: mp.pi / 2 - mp.atan(x), "1e-9", "-3", "1e5")
rows("Exp", mp.exp, "1e-12", "-700", "709.7", "1.5")
rows("Ln", mp.log, "1e-300", "0.999999999", "1.5", "1e300")
rows("Log", mp.log10, "1e-300", "0.999999999", "1000", "7")
rows("LogN", lambda x, b: mp.log(x) / mp.log(b), "8 2", "7 1.0001", "1e-200 0.3")
rows("Sqr", mp.sqrt, "2", "1e-308", "1e308")
rows("Cbr", lambda x: mp.sign(x) * mp.cbrt(abs(x)), "27", "-1e-300", "1e300", "2")
rows("Root", lambda x, n: mp.sign(x) * mp.root(abs(x), int(n)), "-8 3", "7 5", "1e300 7", "2 100")
for name, function in [("Sinh", mp.sinh), ("Cosh", mp.cosh), ("Tanh", mp.tanh), ("csch", mp.csch), ("sech", mp.sech),
                       ("coth", mp.coth)]:
    rows(name, function, "1e-10", "0.7", "-3", "700")
rows("Asinh", mp.asinh, "1e-10", "0.7", "-1e10", "1e300")
rows("Acosh", mp.acosh, "1.0000000001", "2", "1e300")
rows("Atanh", mp.atanh, "1e-10", "0.7", "-0.999999999999")
rows("acsch", mp.acsch, "1e-300", "0.7", "-1e10")
rows("asech", mp.asech, "1e-300", "0.7", "0.999999999999")
rows("acoth", mp.acoth, "1.000000000001", "-2", "1e10")
rows("Fact", mp.factorial, "20", "25", "170")
rows("Comb", mp.binomial, "52 5", "1000 300", "1029 514", "1e15 3")
rows("Perm", lambda n, k: mp.ff(n, k), "52 5", "170 170", "1e15 20")
rows("meang", lambda *v: mp.power(mp.fprod(v), mpf(1) / len(v)), "1 2 3 4.5", "1e-300 1e300")
rows("stdev", stdev, "1000000001 1000000002 1000000004", "0.1 0.2 0.4")
rows("meanq", lambda *v: mp.sqrt(sum(x * x for x in v) / len(v)), "1 2 3 4.5")

print("# relative 1e-12")
rows("Erf", mp.erf, "1e-20", "0.5", "-1.5", "5.5")
rows("Gamma", mp.gamma, "1e-300", "0.5", "-1.5", "171.6", "-170.5", "33.3")
rows("Gammaln", lambda x: mp.log(abs(mp.gamma(x))), "1e-10", "0.5", "2.5", "1e10", "-3.7", "1e300")
rows("Digamma", mp.digamma, "1e-8", "0.5", "-1.5", "1e10", "20")
rows("Psi", mp.digamma, "3.3")
rows("Beta", mp.beta, "0.5 0.5", "3 4", "1e-5 20", "300 200")
rows("GammaI", lambda a, x: mp.gammainc(a, 0, x, regularized=True), "0.5 0.1", "3 2", "100 90", "1000 1100", "1e-3 5",
     "10 0.001", "1e6 1e6")
rows("BetaI", lambda x, a, b: mp.betainc(a, b, 0, x, regularized=True), "0.3 2 3", "0.99 0.5 0.5", "0.001 5 20",
     "0.5 200 210")
rows("Zeta", mp.zeta, "0", "0.5", "2", "-1", "1.0000001", "30", "-20.5", "60")
rows("Ei", mp.ei, "1e-10", "0.5", "-0.5", "-20", "20", "700", "-600")
rows("Ein", ein, "0.5 1", "3 2", "1e-5 3", "50 7", "0.7 0", "600 1")
rows("Si", mp.si, "1e-12", "0.5", "-3", "5.9", "6.1", "25", "1000", "1e15")
rows("Ci", mp.ci, "1e-12", "0.5", "3", "5.9", "6.1", "25", "1000", "1e15")
rows("fresnels", mp.fresnels, "1e-6", "0.5", "-1.2", "1.99", "2.01", "5", "100.3", "1e9")
rows("fresnelc", mp.fresnelc, "1e-6", "0.5", "-1.2", "1.99", "2.01", "5", "100.3", "1e9")
rows("AiryA", mp.airyai, "0", "5e-7", "1", "-1", "10", "-20.5", "100")
rows("AiryB", mp.airybi, "0", "5e-7", "1", "-1", "10", "-20.5", "100")
rows("J0", lambda x: mp.besselj(0, x), "1e-9", "0.5", "-3", "50.5", "10000")
rows("Y0", lambda x: mp.bessely(0, x), "1e-9", "0.5", "3", "50.5", "10000")
rows("I0", lambda x: mp.besseli(0, x), "1e-9", "0.5", "-3", "50.5", "700")
rows("K0", lambda x: mp.besselk(0, x), "1e-9", "0.5", "3", "50.5", "700")
order = ["0.5 1", "3 2.5", "50.5 10", "1 40", "700 3"]
rows("BesselJ", lambda x, n: mp.besselj(n, x), *order, "-3 3", "10000 7")
rows("BesselY", lambda x, n: mp.bessely(n, x), *order, "10000 7")
rows("BesselI", lambda x, n: mp.besseli(n, x), *order, "-3 3")
rows("BesselK", lambda x, n: mp.besselk(n, x), *order)
rows("PolyLe", legendre, "0.3 5", "-0.99 100", "1.5 20", "0.25 1000")
rows("PolyHe", lambda x, n: mp.hermite(int(n), x), "0.3 5", "-2.5 20", "10 100")
rows("PolyCh", lambda x, n: mp.chebyt(int(n), x), "0.3 5", "-0.99 100", "1.5 20", "0.25 1000")
rows("PolyLa", lambda x, n: mp.laguerre(int(n), 0, x), "0.3 5", "10 20", "-3 50", "100 200")
rows("elli1", lambda phi, k: mp.ellipf(phi, k * k), "0.5 0.3", "1.5 0.99", "10 0.8", "-1 0.5", "1e-5 1")
rows("elli2", lambda phi, k: mp.ellipe(phi, k * k), "0.5 0.3", "1.5 0.99", "10 0.8", "-1 0.5", "1.5 1", "-5 1")
rows("DNorm", lambda x, m, s: mp.npdf(x, m, s), "0 0 1", "3 1 0.5", "-37 0 1")
rows("CNorm", lambda x, m, s: mp.erfc((m - x) / s / mp.sqrt(2)) / 2, "0 0 1", "3 1 0.5", "-37 0 1", "0.1 0 1")
rows("DBinom", lambda k, n, p: mp.binomial(n, k) * p**k * (1 - p) ** (n - k), "3 10 0.3", "0 5 0.2", "500 1000 0.45",
     "10 10 0.999", "30 100000 0.001")
rows("CBinom", binom_cdf, "3 10 0.3", "0 5 0.2", "500 1000 0.45", "30 400 0.2")
rows("DPoisson", lambda k, m: mp.exp(-m) * m**k / mp.factorial(k), "3 2.5", "0 1e-5", "1000 900", "150 3")
rows("CPoisson", lambda k, m: mp.gammainc(k + 1, m, mp.inf, regularized=True), "3 2.5", "0 1e-5", "1000 900", "5 50")
rows("HypGeom", hyp, "1 1 2 0.5", "0.5 1.5 2.5 -0.3", "1 2 3 0.9", "1 1 2 0.999999", "0.5 0.5 1 -5", "2 3 4 -1000",
     "1 2 4 -1e10", "1.5 1.5 3.5 0.75", "-5 3 2 7", "0.3 0.4 2.5 1", "3 4 1 0.95", "5 6 7 -0.8", "1 -2.5 -3.5 0.4",
     "2 2 2 -50", "10 12 15 0.6", "3 1 1 -4500",
     "10 0.5 0.5 -100", "-9.5 0.5 0.5 0.999", "-4 7 -4 -1", "-0.97 -45.27 -45.27 -24247", "3 -10.005 -41.7 0.3")
