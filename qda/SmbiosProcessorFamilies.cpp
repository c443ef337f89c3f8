// The families of processors (DSP0134, 7.5.2), without the words that all of them have.

#include <qda/SmbiosShow.h>

namespace qda {

const char kProcessorFamilies[] =
    "Other|Unknown|8086|80286|80386|80486|8087|80287|80387|80487|Pentium|Pentium Pro|Pentium II|"
    "Pentium MMX|Celeron|Pentium II Xeon|Pentium III|M1|M2|Celeron M|Pentium 4 HT|"
    "#18|Duron|K5|K6|K6-2|K6-3|Athlon|AMD29000|K6-2+|"
    "Power PC|Power PC 601|Power PC 603|Power PC 603+|Power PC 604|Power PC 620|Power PC x704|"
    "Power PC 750|Core Duo|Core Duo Mobile|Core Solo Mobile|Atom|Core M|Core m3|Core m5|Core m7|"
    "Alpha|Alpha 21064|Alpha 21066|Alpha 21164|Alpha 21164PC|Alpha 21164a|Alpha 21264|Alpha 21364|"
    "Turion II Ultra Dual-Core Mobile M|Turion II Dual-Core Mobile M|Athlon II Dual-Core M|"
    "Opteron 6100|Opteron 4100|Opteron 6200|Opteron 4200|FX|"
    "MIPS|MIPS R4000|MIPS R4200|MIPS R4400|MIPS R4600|MIPS R10000|C-Series|E-Series|A-Series|"
    "G-Series|Z-Series|R-Series|Opteron 4300|Opteron 6300|Opteron 3300|FirePro|"
    "SPARC|SuperSPARC|microSPARC II|microSPARC IIep|UltraSPARC|UltraSPARC II|UltraSPARC IIi|"
    "UltraSPARC III|UltraSPARC IIIi|"
    "#60|68040|68xxx|68000|68010|68020|68030|Athlon X4|Opteron X1000|Opteron X2000|"
    "Opteron A-Series|Opteron X3000|Zen|"
    "#70|Hobbit|#78|Crusoe TM5000|Crusoe TM3000|Efficeon TM8000|#80|Weitek||Itanium|Athlon 64|"
    "Opteron|Sempron|Turion 64|Dual-Core Opteron|Athlon 64 X2|Turion 64 X2|Quad-Core Opteron|"
    "Third-Generation Opteron|Phenom FX|Phenom X4|Phenom X2|Athlon X2|"
    "PA-RISC|PA-RISC 8500|PA-RISC 8000|PA-RISC 7300LC|PA-RISC 7200|PA-RISC 7100LC|PA-RISC 7100|"
    "#A0|V30|Quad-Core Xeon 3200|Dual-Core Xeon 3000|Quad-Core Xeon 5300|Dual-Core Xeon 5100|"
    "Dual-Core Xeon 5000|Dual-Core Xeon LV|Dual-Core Xeon ULV|Dual-Core Xeon 7100|"
    "Quad-Core Xeon 5400|Quad-Core Xeon|Dual-Core Xeon 5200|Dual-Core Xeon 7200|"
    "Quad-Core Xeon 7300|Quad-Core Xeon 7400|Multi-Core Xeon 7400|"
    "Pentium III Xeon|Pentium III SpeedStep|Pentium 4|Xeon|AS400|Xeon MP|Athlon XP|Athlon MP|"
    "Itanium 2|Pentium M|Celeron D|Pentium D|Pentium Extreme Edition|Core Solo|"
    "Core 2 or K7|Core 2 Duo|Core 2 Solo|Core 2 Extreme|Core 2 Quad|Core 2 Extreme Mobile|"
    "Core 2 Duo Mobile|Core 2 Solo Mobile|Core i7|Dual-Core Celeron|IBM390|G4|G5|ESA/390 G6|"
    "z/Architecture|Core i5|Core i3|Core i9|"
    "#D2|C7-M|C7-D|C7|Eden|Multi-Core Xeon|Dual-Core Xeon 3xxx|Quad-Core Xeon 3xxx|Nano|"
    "Dual-Core Xeon 5xxx|Quad-Core Xeon 5xxx||Dual-Core Xeon 7xxx|Quad-Core Xeon 7xxx|"
    "Multi-Core Xeon 7xxx|Multi-Core Xeon 3400|"
    "#E4|Opteron 3000|Sempron II|Embedded Opteron Quad-Core|Phenom Triple-Core|"
    "Turion Ultra Dual-Core Mobile|Turion Dual-Core Mobile|Athlon Dual-Core|Sempron SI|Phenom II|"
    "Athlon II|Six-Core Opteron|Sempron M|"
    "#FA|i860|i960|#100|ARMv7|ARMv8|ARMv9||SH-3|SH-4|#118|ARM|StrongARM|#12C|6x86|MediaGX|MII|"
    "#140|WinChip|#15E|DSP|#1F4|Video Processor|#200|RV32|RV64|RV128|"
    "#258|LoongArch";

}  // namespace qda
