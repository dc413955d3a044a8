import SwiftUI

// SVG
struct Group1: View {

  static let intrinsicSize = CGSize(width: 240, height: 120)

  // Nested Groups and Shapes

  var isResizable = false
  func resizable() -> Self { Self(isResizable: true) }

  var body: some View {
    if isResizable {
      GeometryReader { proxy in
        ZStack(alignment: .topLeading) {
          Text("Say \"hi\" \\ there")
            .foregroundColor(.black)
            .font(.custom("Times", size: 14))
            .padding(.leading, 10)
            .alignmentGuide(.bottom) { $0[.firstTextBaseline] }
            .frame(width: .infinity, height: 20, alignment: .bottom)
          Text("Mono")
            .foregroundColor(.init(red: 0.0706, green: 0.2039, blue: 0.3373))
            .font(.system(size: 12, weight: .bold, design: .monospaced).italic())
            .alignmentGuide(.bottom) { $0[.firstTextBaseline] }
            .frame(width: .infinity, height: 40, alignment: .bottom)
          Text("Named")
            .foregroundColor(.black)
            .font(.custom("georgia", size: 16).weight(.semibold))
            .alignmentGuide(.bottom) { $0[.firstTextBaseline] }
            .frame(width: .infinity, height: 60, alignment: .bottom)
          Text("Caption")
            .font(.body) // caption
            .padding(.leading, 10)
            .alignmentGuide(.bottom) { $0[.firstTextBaseline] }
            .frame(width: .infinity, height: 80, alignment: .bottom)
          Text("Cursive")
            .foregroundColor(.red)
            .font(.custom("Snell Roundhand", size: 12).italic())
            .padding(.leading, 20)
            .alignmentGuide(.bottom) { $0[.firstTextBaseline] }
            .frame(width: .infinity, height: 100, alignment: .bottom)
          Text("Light")
            .foregroundColor(.black)
            .font(.system(size: 10, weight: .light))
            .padding(.leading, 30)
            .alignmentGuide(.bottom) { $0[.firstTextBaseline] }
            .frame(width: .infinity, height: 110, alignment: .bottom)
          Text("Regular")
            .foregroundColor(.black)
            .font(.system(size: 10))
            .padding(.leading, 30)
            .alignmentGuide(.bottom) { $0[.firstTextBaseline] }
            .frame(width: .infinity, height: 115, alignment: .bottom)
          Text("Small")
            .foregroundColor(.black)
            .font(.caption) // small-caps
            .padding(.leading, 30)
            .alignmentGuide(.bottom) { $0[.firstTextBaseline] }
            .frame(width: .infinity, height: 118, alignment: .bottom)
        }
        .frame(width: 240, height: 120,
               alignment: .topLeading)
        .scaleEffect(x: proxy.size.width  / 240,
                     y: proxy.size.height / 120)
        .frame(width: proxy.size.width, height: proxy.size.height)
      }
    }
    else {
      ZStack(alignment: .topLeading) {
        Text("Say \"hi\" \\ there")
          .foregroundColor(.black)
          .font(.custom("Times", size: 14))
          .padding(.leading, 10)
          .alignmentGuide(.bottom) { $0[.firstTextBaseline] }
          .frame(width: .infinity, height: 20, alignment: .bottom)
        Text("Mono")
          .foregroundColor(.init(red: 0.0706, green: 0.2039, blue: 0.3373))
          .font(.system(size: 12, weight: .bold, design: .monospaced).italic())
          .alignmentGuide(.bottom) { $0[.firstTextBaseline] }
          .frame(width: .infinity, height: 40, alignment: .bottom)
        Text("Named")
          .foregroundColor(.black)
          .font(.custom("georgia", size: 16).weight(.semibold))
          .alignmentGuide(.bottom) { $0[.firstTextBaseline] }
          .frame(width: .infinity, height: 60, alignment: .bottom)
        Text("Caption")
          .font(.body) // caption
          .padding(.leading, 10)
          .alignmentGuide(.bottom) { $0[.firstTextBaseline] }
          .frame(width: .infinity, height: 80, alignment: .bottom)
        Text("Cursive")
          .foregroundColor(.red)
          .font(.custom("Snell Roundhand", size: 12).italic())
          .padding(.leading, 20)
          .alignmentGuide(.bottom) { $0[.firstTextBaseline] }
          .frame(width: .infinity, height: 100, alignment: .bottom)
        Text("Light")
          .foregroundColor(.black)
          .font(.system(size: 10, weight: .light))
          .padding(.leading, 30)
          .alignmentGuide(.bottom) { $0[.firstTextBaseline] }
          .frame(width: .infinity, height: 110, alignment: .bottom)
        Text("Regular")
          .foregroundColor(.black)
          .font(.system(size: 10))
          .padding(.leading, 30)
          .alignmentGuide(.bottom) { $0[.firstTextBaseline] }
          .frame(width: .infinity, height: 115, alignment: .bottom)
        Text("Small")
          .foregroundColor(.black)
          .font(.caption) // small-caps
          .padding(.leading, 30)
          .alignmentGuide(.bottom) { $0[.firstTextBaseline] }
          .frame(width: .infinity, height: 118, alignment: .bottom)
      }
      .frame(width: 240, height: 120)
    }
  }
}

struct Group1_Previews: PreviewProvider {

  static var previews: some View {
    VStack {
      Group1()
        .resizable()
        .frame(width  : Group1.intrinsicSize.width,
               height : Group1.intrinsicSize.height)
        .background(Color.clear.border(Color.green))
        .padding()
      Text("Size: 240.0x120.0").padding(.bottom)
    }
  }
}
