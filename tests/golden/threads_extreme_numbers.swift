import SwiftUI

// SVG
struct Group1: View {

  static let intrinsicSize = CGSize(width: 1000000000000000000000, height: 0)

  // Nested Groups and Shapes

  struct Reactangle1: View {

    static let intrinsicSize = CGSize(width: .infinity, height: 98765.4321)
    static let origin        = CGPoint(x: -100000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000, y: .nan)

    var body: some View {
      Rectangle()
        .fill(Color.black)
    }
  }

  var isResizable = false
  func resizable() -> Self { Self(isResizable: true) }

  var body: some View {
    if isResizable {
      GeometryReader { proxy in
        Reactangle1()
          .frame(width: .infinity, height: 98765.4321, alignment: .topLeading)
          .padding(.leading, -100000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000)
          .padding(.top, .nan)
          .frame(width: 1000000000000000000000, height: 0,
                 alignment: .topLeading)
          .scaleEffect(x: proxy.size.width  / 1000000000000000000000,
                       y: proxy.size.height / 0)
          .frame(width: proxy.size.width, height: proxy.size.height)
      }
    }
    else {
      Reactangle1()
        .frame(width: .infinity, height: 98765.4321, alignment: .topLeading)
        .padding(.leading, -100000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000)
        .padding(.top, .nan)
        .frame(width: 1000000000000000000000, height: 0)
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
      Text("Size: 1e+21x1.23e-07").padding(.bottom)
    }
  }
}
