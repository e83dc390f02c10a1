// Looks in files of the host.
#include "Simulator/App/LookFile.hpp"

#include "Simulator/App/StartFiles.hpp"
#include "Simulator/Control/OutputFile.hpp"
#include "Simulator/Preview/Look.hpp"

#include <iostream>

namespace Simulator::App {

using Control::Json;

int exportLook(const std::string& root, const std::string& file)
{
    const Control::OutputFile look(file);
    look.write(Preview::readLook(root).dump(4) + "\n");
    return 0;
}

int importLook(const std::string& root, const std::string& file)
{
    const Json look = jsonOf(file, bytesOf(file));
    try {
        for (const std::string font : Preview::writeLook(root, look))
            std::cerr << "lyr: the look uses the font " << Control::quote(font)
                      << ", which this phone lacks; its file belongs into /Library/Application Support/LYRFont"
                      << std::endl;
    } catch (const Control::ProtocolError& error) {
        throw Failure(file + ": " + error.what());
    }
    return 0;
}

}
