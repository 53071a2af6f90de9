// Stands in for the transfer program of a laser distance meter: types measures into whatever control has the keyboard
// focus, each followed by Enter, as the meter's shots arrive, and ends.
//
// TESSALINE_METER, "MEASUREMENTS MILLISECONDS", sets how many measurements of two shots it takes (20) and the time
// between two shots (500).

#include <chrono>
#include <cstdlib>
#include <sstream>
#include <string>
#include <thread>

#include <wx/app.h>

#include "workbench/company/LoadPath.h"
#include "workbench/tour/VirtualUser.h"

namespace {

struct Series {
    int measurements = 20;
    int milliseconds = 500;
};

Series readSeries() {
    Series series;
    if (const char* setting = std::getenv("TESSALINE_METER"))
        std::istringstream(setting) >> series.measurements >> series.milliseconds;
    return series;
}

/// Inches with eighths, "24 1/8": every shot differs from the others of a series.
std::string shot(int number, int inches) {
    static const char* const fractions[] = {"", " 1/8", " 1/4", " 3/8", " 1/2", " 5/8", " 3/4", " 7/8"};
    return std::to_string(inches + number) + fractions[number % 8];
}

class Meter : public wxApp {
  public:
    bool OnInit() override {
        tsln::workbench::restrictLoadPath();
        return true;
    }
    int OnRun() override {
        using tsln::workbench::press;
        const Series series = readSeries();
        const std::chrono::milliseconds between(series.milliseconds);
        for (int i = 0; i < series.measurements; ++i) {
            for (const int inches : {24, 60}) {
                std::this_thread::sleep_for(between);
                tsln::workbench::type(shot(i, inches));
                press(WXK_RETURN);
            }
        }
        return 0;
    }
};

}  // namespace

wxIMPLEMENT_APP(Meter);
