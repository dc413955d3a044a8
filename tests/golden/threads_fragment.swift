import SwiftUI

// SVG
struct Group1: View {

  // Nested Groups and Shapes

  struct PathView1: View { // SVGPath

    struct PathShape1: Shape {

      func path(in rect: CGRect) -> Path {
        Path { path in
          path.addLines([
            .init(x: 0, y: 0),
            .init(x: 10, y: 0),
            .init(x: 5, y: 8.5)
          ])
          path.closeSubpath()
        }
      }
    }

    var body: some View {
      PathShape1()
        .fill(Color.black)
    }
  }

  var body: some View {
    PathView1()
  }
}

struct Group1_Previews: PreviewProvider {

  static var previews: some View {
    VStack {
      Group1()
        .frame(width: 128, height: 128)
        .background(Color.clear.border(Color.green))
        .padding()
    }
  }
}
