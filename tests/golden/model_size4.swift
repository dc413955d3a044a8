import SwiftUI

// SVG
struct Group1: View {

  static let viewBox = CGRect(x: 0.0, y: 0.0, width: 30, height: 40)

  // Nested Groups and Shapes

  // SVG
  struct Group2: View {

    static let intrinsicSize = CGSize(width: 7, height: 40)

    var isResizable = false
    func resizable() -> Self { Self(isResizable: true) }

    var body: some View {
      if isResizable {
        GeometryReader { proxy in
          EmptyView() // Group w/o content
            .frame(width: 7, height: 40,
                   alignment: .topLeading)
            .scaleEffect(x: proxy.size.width  / 7,
                         y: proxy.size.height / 40)
            .frame(width: proxy.size.width, height: proxy.size.height)
        }
      }
      else {
        EmptyView() // Group w/o content
          .frame(width: 7, height: 40)
      }
    }
  }

  // SVG
  struct Group3: View {

    static let intrinsicSize = CGSize(width: 30, height: 7)

    var isResizable = false
    func resizable() -> Self { Self(isResizable: true) }

    var body: some View {
      if isResizable {
        GeometryReader { proxy in
          EmptyView() // Group w/o content
            .frame(width: 30, height: 7,
                   alignment: .topLeading)
            .scaleEffect(x: proxy.size.width  / 30,
                         y: proxy.size.height / 7)
            .frame(width: proxy.size.width, height: proxy.size.height)
        }
      }
      else {
        EmptyView() // Group w/o content
          .frame(width: 30, height: 7)
      }
    }
  }

  // SVG
  struct Group4: View {

    static let intrinsicSize = CGSize(width: 100, height: 40)

    // Nested Groups and Shapes

    struct Reactangle1: View {

      static let intrinsicSize = CGSize(width: 1, height: 1)

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
            .frame(width: 1, height: 1, alignment: .topLeading)
            .frame(width: 100, height: 40,
                   alignment: .topLeading)
            .scaleEffect(x: proxy.size.width  / 100,
                         y: proxy.size.height / 40)
            .frame(width: proxy.size.width, height: proxy.size.height)
        }
      }
      else {
        Reactangle1()
          .frame(width: 1, height: 1, alignment: .topLeading)
          .frame(width: 100, height: 40)
      }
    }
  }

  var body: some View {
    GeometryReader { proxy in
      ZStack(alignment: .topLeading) {
        Group2()
          .resizable()
          .frame(width: 7, height: 40, alignment: .topLeading)
        Group3()
          .resizable()
          .frame(width: 30, height: 7, alignment: .topLeading)
        Group4()
          .resizable()
          .frame(width: 100, height: 40, alignment: .topLeading)
      }
      .frame(width: Self.viewBox.width, height: Self.viewBox.height,
             alignment: .topLeading)
      .scaleEffect(x: proxy.size.width  / Self.viewBox.width,
                   y: proxy.size.height / Self.viewBox.height)
      .frame(width: proxy.size.width, height: proxy.size.height)
    }
  }
}

struct Group1_Previews: PreviewProvider {

  static var previews: some View {
    VStack {
      Group1()
        .frame(width  : Group1.viewBox.width,
               height : Group1.viewBox.height)
        .background(Color.clear.border(Color.green))
        .padding()
      Text("ViewBox: 0.0,0.0 30.0x40.0").padding(.bottom)
    }
  }
}
