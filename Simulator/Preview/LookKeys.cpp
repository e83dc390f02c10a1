// What a look may hold: the keys under which the phone stores its settings and colours.
#include "Simulator/Preview/Look.hpp"

#include "Product/Settings.hpp"

namespace Simulator::Preview {

const std::vector<std::string>& lookSettings()
{
    static const std::vector<std::string> keys = [] {
        std::vector<std::string> list;
        for (const Product::Setting& setting : Product::settings)
            list.emplace_back(setting.key);
        list.insert(list.end(), {Product::pickedTimeFontKey, Product::pickedDateFontKey});
        return list;
    }();
    return keys;
}

const std::vector<std::string>& lookColours()
{
    static const std::vector<std::string> keys(std::begin(Product::colourKeys), std::end(Product::colourKeys));
    return keys;
}

}
