#include <QCoreApplication>
#include <QTextStream>

// The window comes with the operator console; until then the program says so and ends.
int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    QTextStream(stderr) << "upsizer: the operator window is not built yet.\n";
    return 2;
}
