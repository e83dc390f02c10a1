// Attachments, and the method of attributed strings that makes a text of one.
#include "Simulator/UIKit/NSTextAttachment.hpp"

#include "Platform/Foundation/NSDictionary.hpp"
#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/UIKit/UIImage.hpp"

namespace Simulator {

void NSTextAttachment::initWithData(const NS::Data& data, const NS::String& type)
{
    setContents(data);
    fileType = type;
}

void NSTextAttachment::setContents(const NS::Data& data)
{
    contents = data;
    if (!image && data)
        image = UI::Image::imageWithData(data);
}

CGRect NSTextAttachment::effectiveBounds() const
{
    if (bounds.size.width != 0 || bounds.size.height != 0)
        return bounds;
    return {bounds.origin, image.size()};
}

/// One character that stands for the attachment.
static NS::AttributedString stringWithAttachment(ObjC::Object, SEL, const NS::TextAttachment& attachment)
{
    auto attributes = NS::MutableDictionary::dictionary();
    if (attachment)
        attributes.setObject(attachment, NS::String::fromUTF8(attachmentAttribute));
    return NS::AttributedString::make<"initWithString:attributes:">(NS::String::fromUTF8("\uFFFC"), attributes);
}

static const StandInClass nsTextAttachment("NSTextAttachment", "NSObject", [](Binder<NSTextAttachment>& binder) {
    binder.init<"initWithData:ofType:", &NSTextAttachment::initWithData>()
        .property<"image", "setImage:", &NSTextAttachment::image>()
        .property<"bounds", "setBounds:", &NSTextAttachment::bounds>()
        .readonly<"contents", &NSTextAttachment::contents>()
        .def<"setContents:", &NSTextAttachment::setContents>()
        .property<"fileType", "setFileType:", &NSTextAttachment::fileType>()
        .add();
    using Maker = ObjC::Adapter<&stringWithAttachment>;
    class_addMethod(object_getClass(reinterpret_cast<id>(objc_getClass("NSAttributedString"))),
        ObjC::selector<"attributedStringWithAttachment:">(), Maker::implementation(), Maker::types());
});

}
