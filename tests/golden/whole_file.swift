import SwiftUI

// SVG
struct Sample: View {

  static let intrinsicSize = CGSize(width: 200, height: 100)

  // Nested Groups and Shapes

  struct Circle1: View {

    static let intrinsicSize = CGSize(width: 80, height: 80)
    static let origin        = CGPoint(x: 10, y: 10)

    var body: some View {
      Circle()
        .fill(Color.black)
    }
  }

  var isResizable = false
  func resizable() -> Self { Self(isResizable: true) }

  var body: some View {
    if isResizable {
      GeometryReader { proxy in
        Circle1()
          .frame(width: 80, height: 80, alignment: .topLeading)
          .padding(.leading, 10)
          .padding(.top, 10)
          .frame(width: 200, height: 100,
                 alignment: .topLeading)
          .scaleEffect(x: proxy.size.width  / 200,
                       y: proxy.size.height / 100)
          .frame(width: proxy.size.width, height: proxy.size.height)
      }
    }
    else {
      Circle1()
        .frame(width: 80, height: 80, alignment: .topLeading)
        .padding(.leading, 10)
        .padding(.top, 10)
        .frame(width: 200, height: 100)
    }
  }
}

struct Sample_Previews: PreviewProvider {

  static var previews: some View {
    VStack {
      Sample()
        .resizable()
        .frame(width  : Sample.intrinsicSize.width,
               height : Sample.intrinsicSize.height)
        .background(Color.clear.border(Color.green))
        .padding()
      Text("Size: 200.0x100.0").padding(.bottom)
    }
  }
}
