// What a look may hold: the keys under which the phone stores its settings and colours.
#include "Simulator/Preview/Look.hpp"

namespace Simulator::Preview {

const std::vector<std::string>& lookSettings()
{
    static const std::vector<std::string> keys{"enabled", "enabledCustom", "enableTime", "enableDate", "chargeAnim",
        "showWidget", "showWidgetLastLook", "updateLastLook", "hiddenFlashlight", "hiddenCamera", "twentyFour",
        "twentyFourTime", "hideNotifHeader", "amountEvent", "rangeEvent", "dateOption", "alternateOption", "sunOption",
        "battOption", "hlOption", "highLowOption", "colourIconWeather", "shadowText", "useCustomFont2", "disableAFont",
        "timeFormat", "dateFormat", "alternateFormat", "customFont", "styleDate", "alignTime", "alignDate",
        "XtimeLabel", "XdateLabel", "YtimeLabel", "YdateLabel", "YwidgetView", "XwidgetView", "yNC", "Ymedia",
        "sizeWidget", "colorTextWidget", "colorWidget", "colorTime", "colorDate", "sizeTimeLabel", "sizeDateLabel",
        "alphaTime", "alphaDate", "listFont", "listFont2", "enabledCT", "customText", "enabledCT2", "ctNoOlder",
        "customFontPickerTime", "customFontPicker"};
    return keys;
}

const std::vector<std::string>& lookColours()
{
    static const std::vector<std::string> keys{
        "colourTime", "colourDate", "colourWidget", "colourTextWidget", "colourShadow"};
    return keys;
}

}
